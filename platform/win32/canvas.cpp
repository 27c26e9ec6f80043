#include "platform/win32/canvas.h"

#include <algorithm>

#include "platform/win32/handles.h"

namespace nerida {
namespace {

int indexOf(SystemColor color) { return static_cast<int>(color); }

// What lies beyond the three bytes of a colour would mean a palette's entry to the system.
COLORREF inkOf(Rgb color) { return static_cast<COLORREF>(color) & 0xFFFFFF; }

}  // namespace

// Both corners are inside, in the order in which a rectangle has them.
RECT SystemCanvas::pixels(Twips x1, Twips y1, Twips x2, Twips y2) const {
  const auto [left, right] = std::minmax({scale.pixelsX(x1), scale.pixelsX(x2)});
  const auto [top, bottom] = std::minmax({scale.pixelsY(y1), scale.pixelsY(y2)});
  return {left, top, right + 1, bottom + 1};
}

void SystemCanvas::line(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) {
  line(x1, y1, x2, y2, static_cast<Rgb>(GetSysColor(indexOf(color))));
}

void SystemCanvas::line(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) {
  const COLORREF ink = inkOf(color);
  const UniquePen pen(CreatePen(PS_SOLID, 1, ink));
  const Selected selected(dc, pen.get());
  const POINT end = {scale.pixelsX(x2), scale.pixelsY(y2)};
  MoveToEx(dc, scale.pixelsX(x1), scale.pixelsY(y1), nullptr);
  LineTo(dc, end.x, end.y);
  SetPixelV(dc, end.x, end.y, ink);  // the system stops short of it
}

void SystemCanvas::box(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) {
  const RECT outline = pixels(x1, y1, x2, y2);
  FrameRect(dc, &outline, GetSysColorBrush(indexOf(color)));
}

void SystemCanvas::filledBox(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) {
  const RECT area = pixels(x1, y1, x2, y2);
  FillRect(dc, &area, GetSysColorBrush(indexOf(color)));
}

void SystemCanvas::filledBox(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) {
  const RECT area = pixels(x1, y1, x2, y2);
  const UniqueBrush brush(CreateSolidBrush(inkOf(color)));
  FillRect(dc, &area, brush.get());
}

// It inverts what is below it, in colours that the context is told here.
void SystemCanvas::focusBox(Twips x1, Twips y1, Twips x2, Twips y2) {
  const RECT outline = pixels(x1, y1, x2, y2);
  SetTextColor(dc, RGB(0, 0, 0));
  SetBkColor(dc, RGB(255, 255, 255));
  DrawFocusRect(dc, &outline);
}

}  // namespace nerida

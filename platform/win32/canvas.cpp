#include "platform/win32/canvas.h"

#include <algorithm>

#include "platform/win32/handles.h"

namespace nerida {
namespace {

int indexOf(SystemColor color) { return static_cast<int>(color); }

}  // namespace

// Both corners are inside, in the order in which a rectangle has them.
RECT SystemCanvas::pixels(Twips x1, Twips y1, Twips x2, Twips y2) const {
  const auto [left, right] = std::minmax({scale.pixelsX(x1), scale.pixelsX(x2)});
  const auto [top, bottom] = std::minmax({scale.pixelsY(y1), scale.pixelsY(y2)});
  return {left, top, right + 1, bottom + 1};
}

void SystemCanvas::line(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) {
  const COLORREF ink = GetSysColor(indexOf(color));
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

}  // namespace nerida

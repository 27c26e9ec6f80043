#include "platform/win32/canvas.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>

namespace nerida {
namespace {

// The buffer has the bytes of a colour the other way round; what lies beyond the three is dropped.
PixelColor inkOf(std::uint32_t color) { return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF); }

PixelColor inkOf(Rgb color) { return inkOf(static_cast<std::uint32_t>(color)); }

PixelColor inkOf(SystemColor color) { return inkOf(static_cast<std::uint32_t>(GetSysColor(static_cast<int>(color)))); }

}  // namespace

void SystemCanvas::clear() { fill({0, 0, INT_MAX, INT_MAX}, inkOf(SystemColor::buttonFace)); }

// Both corners are inside, in the order in which a rectangle has them.
Box SystemCanvas::pixels(Twips x1, Twips y1, Twips x2, Twips y2) const {
  const POINT a = pixel(x1, y1);
  const POINT b = pixel(x2, y2);
  return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x) + 1, std::max(a.y, b.y) + 1};
}

void SystemCanvas::line(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) {
  line(pixel(x1, y1), pixel(x2, y2), inkOf(color));
}

void SystemCanvas::line(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) {
  line(pixel(x1, y1), pixel(x2, y2), inkOf(color));
}

void SystemCanvas::line(POINT from, POINT to, PixelColor color) {
  const long right = to.x - from.x;
  const long down = to.y - from.y;
  const long steps = std::max(std::abs(right), std::abs(down));
  const auto part = [steps](long length, long step) {
    return steps == 0 ? 0 : static_cast<int>(std::lround(static_cast<double>(length) * step / steps));
  };
  for (long step = 0; step <= steps; ++step) {
    const int x = from.x + part(right, step);
    const int y = from.y + part(down, step);
    fill({x, y, x + 1, y + 1}, color);
  }
}

void SystemCanvas::box(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) {
  const Box outline = pixels(x1, y1, x2, y2);
  const PixelColor ink = inkOf(color);
  fill({outline.left, outline.top, outline.right, outline.top + 1}, ink);
  fill({outline.left, outline.bottom - 1, outline.right, outline.bottom}, ink);
  fill({outline.left, outline.top, outline.left + 1, outline.bottom}, ink);
  fill({outline.right - 1, outline.top, outline.right, outline.bottom}, ink);
}

void SystemCanvas::filledBox(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) {
  fill(pixels(x1, y1, x2, y2), inkOf(color));
}

void SystemCanvas::filledBox(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) {
  fill(pixels(x1, y1, x2, y2), inkOf(color));
}

// It inverts what is below it, in colours that the context is told here, and must have done so before more is drawn.
void SystemCanvas::focusBox(Twips x1, Twips y1, Twips x2, Twips y2) {
  if (!drawsFocus) return;
  const Box box = pixels(x1, y1, x2, y2);
  const RECT outline = {box.left, box.top, box.right, box.bottom};
  SetTextColor(dc, RGB(0, 0, 0));
  SetBkColor(dc, RGB(255, 255, 255));
  DrawFocusRect(dc, &outline);
  GdiFlush();
}

}  // namespace nerida

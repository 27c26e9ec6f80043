#include "popups/palette_entries.h"

namespace nerida {
namespace {

// The entries' swatches lie below those of the grid's first column and are framed like them.
Corners frameOfSwatch(Pixel pixel) {
  constexpr Twips top{(paletteEntryHeight - cellPitch) / 2};
  return {{0}, top, Twips{cellPitch} - pixel.x, top + Twips{cellPitch} - pixel.y};
}

// What is down has sunk in by a pixel.
Corners sunk(const Corners& place, Pixel pixel) {
  return {place.left + pixel.x, place.top + pixel.y, place.right + pixel.x, place.bottom + pixel.y};
}

void paintOutline(Canvas& canvas, const Corners& place) {
  canvas.box(place.left, place.top, place.right, place.bottom, SystemColor::selection);
}

void paintLook(Canvas& canvas, EntryLook look, Pixel pixel) {
  const Corners whole{{0}, {0}, Twips{paletteEntryWidth} - pixel.x, Twips{paletteEntryHeight} - pixel.y};
  if (look.hovered || look.pressed) paintOutline(canvas, whole);
  if (look.pressed) paintOutline(canvas, shrunk(whole, 1, pixel));
  const Corners inside = shrunk(whole, 2, pixel);
  if (look.focused) canvas.focusBox(inside.left, inside.top, inside.right, inside.bottom);
}

}  // namespace

void paintStyleEntry(Canvas& canvas, EntryLook look, bool chosen, Pixel pixel) {
  const Corners frame = frameOfSwatch(pixel);
  const auto [left, top, right, bottom] = swatchIn(frame, pixel);
  canvas.filledBox(left, top, right, bottom, SystemColor::buttonHighlight);
  canvas.line(left, bottom, right, top, SystemColor::buttonShadow);
  canvas.line(left, top, right, bottom, SystemColor::buttonShadow);
  canvas.box(left, top, right, bottom, SystemColor::buttonShadow);
  if (chosen) paintFrame(canvas, frame);
  paintLook(canvas, look, pixel);
}

void paintMoreColorsEntry(Canvas& canvas, EntryLook look, Pixel pixel) {
  constexpr Rgb quarters[2][2] = {{rgb(255, 0, 0), rgb(255, 204, 0)}, {rgb(51, 102, 255), rgb(0, 128, 0)}};
  const Corners still = swatchIn(frameOfSwatch(pixel), pixel);
  const auto [left, top, right, bottom] = look.pressed ? sunk(still, pixel) : still;
  const Twips middleX = left + Twips{(right - left).value / 2};
  const Twips middleY = top + Twips{(bottom - top).value / 2};
  canvas.filledBox(left, top, middleX, middleY, quarters[0][0]);
  canvas.filledBox(middleX + pixel.x, top, right, middleY, quarters[0][1]);
  canvas.filledBox(left, middleY + pixel.y, middleX, bottom, quarters[1][0]);
  canvas.filledBox(middleX + pixel.x, middleY + pixel.y, right, bottom, quarters[1][1]);
  canvas.box(left, top, right, bottom, SystemColor::buttonShadow);
  paintLook(canvas, look, pixel);
}

}  // namespace nerida

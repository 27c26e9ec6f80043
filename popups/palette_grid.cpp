#include "popups/palette_grid.h"

#include <algorithm>

namespace nerida {
namespace {

constexpr std::int32_t swatchInset = 45;

constexpr std::int32_t floorDivide(std::int32_t value, std::int32_t by) {
  return value >= 0 ? value / by : -((by - 1 - value) / by);
}

}  // namespace

Cell cellBeside(Cell from, Key arrow) {
  const auto step = [arrow](Key back, Key on) { return arrow == on ? 1 : arrow == back ? -1 : 0; };
  const int column = from.column + step(Key::left, Key::right);
  const int row = from.row + step(Key::up, Key::down);
  return {static_cast<std::int16_t>(std::clamp(column, 0, gridColumns - 1)),
          static_cast<std::int16_t>(std::clamp(row, 0, int{recentRow}))};
}

std::optional<Cell> cellAt(Twips x, Twips y) {
  const std::int32_t right = x.value - gridLeft;
  const std::int32_t down = y.value - gridTop;
  const std::int32_t column = floorDivide(right, cellPitch);
  const std::int32_t row = floorDivide(down, cellPitch);
  const bool inGrid = right >= 0 && down >= 0 && column < gridColumns && down <= recentRowBottom;
  if (!inGrid || (down > namedRowsBottom && down < recentRowTop)) return std::nullopt;
  return Cell{static_cast<std::int16_t>(column), static_cast<std::int16_t>(row)};
}

// One pixel is taken off the right edge, off the upper edge of the named colours and off the lower edge of the recent
// ones: so the lines fall on the borders of the swatches.
Corners frameAround(Cell cell, Pixel pixel) {
  const Twips left{cell.column * cellPitch + gridLeft};
  const Twips right = Twips{(cell.column + 1) * cellPitch + gridLeft} - pixel.x;
  if (cell.row >= recentRow) return {left, {recentRowTop + gridTop}, right, Twips{recentRowBottom + gridTop} - pixel.y};
  return {left, Twips{cell.row * cellPitch + gridTop} + pixel.y, right, {(cell.row + 1) * cellPitch + gridTop}};
}

Corners shrunk(const Corners& place, std::int32_t pixels, Pixel pixel) {
  const Twips x{pixels * pixel.x.value};
  const Twips y{pixels * pixel.y.value};
  return {place.left + x, place.top + y, place.right - x, place.bottom - y};
}

// In whole pixels, or the swatches of a row would differ in width.
Corners swatchIn(const Corners& frame, Pixel pixel) {
  return shrunk(frame, std::max(swatchInset / std::max(pixel.x.value, 1), 1), pixel);
}

Bounds placeOfCell(Cell cell) {
  const std::int32_t top = cell.row >= recentRow ? recentRowTop : cell.row * cellPitch;
  return {{gridLeft + cell.column * cellPitch}, {gridTop + top}, {cellPitch}, {cellPitch}};
}

void paintSwatch(Canvas& canvas, const Corners& place, Rgb color) {
  canvas.filledBox(place.left, place.top, place.right, place.bottom, color);
  canvas.box(place.left, place.top, place.right, place.bottom, SystemColor::buttonShadow);
}

void paintFrame(Canvas& canvas, const Corners& place) {
  canvas.line(place.left, place.top, place.right, place.top, SystemColor::selection);
  canvas.line(place.left, place.bottom, place.right, place.bottom, SystemColor::selection);
  canvas.line(place.left, place.top, place.left, place.bottom, SystemColor::selection);
  canvas.line(place.right, place.top, place.right, place.bottom, SystemColor::selection);
}

}  // namespace nerida

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
Corners frameAround(Cell cell, Twips pixelX, Twips pixelY) {
  const Twips left{cell.column * cellPitch + gridLeft};
  const Twips right = Twips{(cell.column + 1) * cellPitch + gridLeft} - pixelX;
  if (cell.row >= recentRow) return {left, {recentRowTop + gridTop}, right, Twips{recentRowBottom + gridTop} - pixelY};
  return {left, Twips{cell.row * cellPitch + gridTop} + pixelY, right, {(cell.row + 1) * cellPitch + gridTop}};
}

Bounds placeOfCell(Cell cell) {
  const std::int32_t top = cell.row >= recentRow ? recentRowTop : cell.row * cellPitch;
  return {{gridLeft + cell.column * cellPitch}, {gridTop + top}, {cellPitch}, {cellPitch}};
}

void paintCell(Canvas& canvas, Cell cell, Rgb color) {
  const Bounds place = placeOfCell(cell);
  const Twips inset{swatchInset};
  const Twips left = place.left + inset;
  const Twips top = place.top + inset;
  const Twips right = place.left + place.width - inset - Twips{15};
  const Twips bottom = place.top + place.height - inset - Twips{15};
  canvas.filledBox(left, top, right, bottom, color);
  canvas.box(left, top, right, bottom, SystemColor::buttonShadow);
}

void paintFrame(Canvas& canvas, const Corners& place) {
  const Twips inset{15};
  canvas.box(place.left + inset, place.top + inset, place.right - inset, place.bottom - inset,
             SystemColor::buttonHighlight);
  canvas.line(place.left, place.top, place.right, place.top, SystemColor::buttonShadow);
  canvas.line(place.left, place.bottom, place.right, place.bottom, SystemColor::buttonShadow);
  canvas.line(place.left, place.top, place.left, place.bottom, SystemColor::buttonShadow);
  canvas.line(place.right, place.top, place.right, place.bottom, SystemColor::buttonShadow);
}

}  // namespace nerida

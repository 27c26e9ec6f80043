#pragma once

#include <array>
#include <optional>

#include "platform/canvas.h"
#include "platform/control.h"
#include "platform/units.h"
#include "popups/color_table.h"

namespace nerida {

// Where the cells of a palette lie on its panel, in twips: five rows of named colours and, somewhat lower, the row of
// recent ones.
inline constexpr std::int32_t cellPitch = 270;
inline constexpr std::int32_t gridLeft = 120;
inline constexpr std::int32_t gridTop = 525;
inline constexpr std::int32_t namedRowsBottom = 1335;  // from the grid's top, like the next two
inline constexpr std::int32_t recentRowTop = 1515;
inline constexpr std::int32_t recentRowBottom = recentRowTop + cellPitch;
inline constexpr std::int16_t gridColumns = 8;
inline constexpr std::int16_t recentRow = 5;
inline constexpr int cellCount = namedColorCount + recentColorCount;

// The entries above and below the grid.
inline constexpr std::int32_t paletteEntryWidth = 8 * cellPitch;
inline constexpr std::int32_t paletteEntryHeight = 330;

struct Cell {
  std::int16_t column = -1;  // -1: none
  std::int16_t row = -1;
  friend constexpr bool operator==(Cell, Cell) = default;
};

constexpr Cell cellOfIndex(int index) {
  return {static_cast<std::int16_t>(index % gridColumns), static_cast<std::int16_t>(index / gridColumns)};
}
constexpr std::int16_t indexOfCell(Cell cell) {
  return static_cast<std::int16_t>(cell.row * gridColumns + cell.column);
}

// Where an arrow key leads from a cell; it stops at the edges. Other keys lead nowhere else.
Cell cellBeside(Cell from, Key arrow);

// The cell at a point of the panel. In the lower part of the recent row the row is 6, as its cells are drawn lower
// than a sixth row of the grid would be. Nothing outside the cells and in the band between the two groups.
std::optional<Cell> cellAt(Twips x, Twips y);

// Two opposite corners, both inside.
struct Corners {
  Twips left, top, right, bottom;
  friend constexpr bool operator==(const Corners&, const Corners&) = default;
};

// One screen pixel.
struct Pixel {
  Twips x, y;
};

// The rectangle of the selection frame around a cell.
Corners frameAround(Cell cell, Pixel pixel);

// A rectangle that is smaller by a number of screen pixels on each side.
Corners shrunk(const Corners& place, std::int32_t pixels, Pixel pixel);

// The swatch in the middle of a frame: as far from each of its lines.
Corners swatchIn(const Corners& frame, Pixel pixel);

// The cell's square.
Bounds placeOfCell(Cell cell);

void paintSwatch(Canvas& canvas, const Corners& place, Rgb color);

// Draws the four lines of the selection frame.
void paintFrame(Canvas& canvas, const Corners& place);

}  // namespace nerida

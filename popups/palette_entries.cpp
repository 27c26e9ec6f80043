#include "popups/palette_entries.h"

#include "popups/palette_grid.h"

namespace nerida {
namespace {

constexpr Twips right{paletteEntryWidth - 15};
constexpr Twips bottom{paletteEntryHeight - 15};

// The swatch of an entry lies in the grid's first column.
constexpr std::int32_t swatchLeft = 60;
constexpr std::int32_t swatchTop = 75;
constexpr std::int32_t swatchSide = 165;

void paintEdge(Canvas& canvas, SystemColor upper, SystemColor lower) {
  canvas.line({0}, {0}, right, {0}, upper);
  canvas.line({0}, {0}, {0}, bottom, upper);
  canvas.line({0}, bottom, right, bottom, lower);
  canvas.line(right, {0}, right, bottom, lower);
}

void paintFrame(Canvas& canvas, EntryLook look, bool sunken) {
  if (look.pressed || sunken) {
    paintEdge(canvas, SystemColor::buttonShadow, SystemColor::buttonHighlight);
  } else if (look.hovered) {
    paintEdge(canvas, SystemColor::buttonHighlight, SystemColor::buttonShadow);
  }
  if (look.focused) canvas.focusBox({45}, {45}, right - Twips{45}, bottom - Twips{45});
}

}  // namespace

void paintStyleEntry(Canvas& canvas, EntryLook look, bool chosen) {
  constexpr Twips left{swatchLeft};
  constexpr Twips top{swatchTop};
  constexpr Twips side{swatchSide};
  canvas.filledBox(left, top, left + side, top + side, SystemColor::buttonHighlight);
  canvas.line(left, top + side, left + side, top, SystemColor::buttonShadow);
  canvas.line(left, top, left + side, top + side, SystemColor::buttonShadow);
  canvas.box(left, top, left + side, top + side, SystemColor::buttonShadow);
  paintFrame(canvas, look, chosen);
}

void paintMoreColorsEntry(Canvas& canvas, EntryLook look) {
  constexpr Rgb quarters[2][2] = {{rgb(255, 0, 0), rgb(255, 204, 0)}, {rgb(51, 102, 255), rgb(0, 128, 0)}};
  constexpr std::int32_t half = 90;
  for (std::int32_t row = 0; row < 2; ++row) {
    for (std::int32_t column = 0; column < 2; ++column) {
      const Twips x{swatchLeft + column * half};
      const Twips y{swatchTop + row * half};
      canvas.filledBox(x, y, x + Twips{half - 15}, y + Twips{half - 15}, quarters[row][column]);
    }
  }
  canvas.box({swatchLeft}, {swatchTop}, {swatchLeft + swatchSide}, {swatchTop + swatchSide}, SystemColor::buttonShadow);
  paintFrame(canvas, look, false);
}

}  // namespace nerida

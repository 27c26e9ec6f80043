#pragma once

#include "platform/canvas.h"
#include "popups/palette_grid.h"

namespace nerida {

// How an entry beside the grid stands at the moment.
struct EntryLook {
  bool hovered = false;
  bool pressed = false;
  bool focused = false;
};

// The entry that hands the colour back to the style: an empty swatch, crossed out. chosen: the style's colour is shown.
void paintStyleEntry(Canvas& canvas, EntryLook look, bool chosen, Pixel pixel);

// The entry that opens the colour dialog.
void paintMoreColorsEntry(Canvas& canvas, EntryLook look, Pixel pixel);

}  // namespace nerida

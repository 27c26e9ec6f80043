#pragma once

#include "platform/canvas.h"

namespace nerida {

// A box to draw in: its size and the size of a pixel, in twips.
struct DrawnBox {
  std::int32_t width;
  std::int32_t height;
  std::int32_t pixelX;
  std::int32_t pixelY;
};

struct PlayPauseLook {
  bool playing;  // shows the pause glyph, for what a click would do
  bool hot;
  bool pressed;
  bool focused;
  Rgb glyphColor;
};

// The hand-drawn play and pause button.
void paintPlayPause(Canvas& canvas, DrawnBox box, const PlayPauseLook& look);

// What stands in the place of a step button while the animation plays: first, previous, next and last frame, etched.
void paintFramePlaceholder(Canvas& canvas, DrawnBox box, int index);

}  // namespace nerida

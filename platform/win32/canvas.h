#pragma once

#include <windows.h>

#include "platform/canvas.h"
#include "platform/win32/back_buffer.h"
#include "platform/win32/scale.h"

namespace nerida {

// Draws into a back buffer; the pixel that a coordinate falls into is the one that is drawn. Pixels are set directly: a
// palette is a hundred boxes, each of which the system takes longer for.
class SystemCanvas final : public Canvas {
 public:
  // The drawing's upper edge lies `above` pixels above the buffer's.
  SystemCanvas(BackBuffer& buffer, SIZE size, const Scale& scale, int above, bool drawsFocus)
      : dc(buffer.context()),
        target(buffer.canvas(size.cx, size.cy)),
        scale(scale),
        above(above),
        drawsFocus(drawsFocus) {}

  // All of it in the colour of faces.
  void clear();

  void line(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) override;
  void box(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) override;
  void filledBox(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) override;
  void line(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) override;
  void filledBox(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) override;
  void focusBox(Twips x1, Twips y1, Twips x2, Twips y2) override;

 private:
  POINT pixel(Twips x, Twips y) const { return {scale.drawnX(x), scale.drawnY(y) - above}; }
  Box pixels(Twips x1, Twips y1, Twips x2, Twips y2) const;
  void line(POINT from, POINT to, PixelColor color);
  void fill(const Box& area, PixelColor color) { target.fill(area, color); }

  HDC dc;
  PixelCanvas target;
  const Scale& scale;
  int above;
  bool drawsFocus;
};

}  // namespace nerida

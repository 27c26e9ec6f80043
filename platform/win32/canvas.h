#pragma once

#include <windows.h>

#include "platform/canvas.h"
#include "platform/win32/scale.h"

namespace nerida {

// Draws into a device context; the pixel that a coordinate falls into is the one that is drawn.
class SystemCanvas final : public Canvas {
 public:
  SystemCanvas(HDC target, const Scale& screenScale) : dc(target), scale(screenScale) {}

  void line(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) override;
  void box(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) override;
  void filledBox(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) override;
  void line(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) override;
  void filledBox(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) override;
  void focusBox(Twips x1, Twips y1, Twips x2, Twips y2) override;

 private:
  RECT pixels(Twips x1, Twips y1, Twips x2, Twips y2) const;

  HDC dc;
  const Scale& scale;
};

}  // namespace nerida

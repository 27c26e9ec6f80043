#pragma once

#include "platform/win32/handles.h"
#include "platform/win32/pixels.h"

namespace nerida {

// The picture in memory that a control is drawn on before it goes to the screen in one piece. A form's controls share
// one; it is made when first needed and grows with them.
class BackBuffer {
 public:
  HDC context();  // for measuring and for text
  // Ready for direct drawing; what was drawn before is still there.
  PixelCanvas canvas(int width, int height);
  void copyTo(HDC target, int width, int height);

 private:
  void grow(int newWidth, int newHeight);

  UniqueBitmap bitmap;
  UniqueMemoryDc dc;  // goes before the bitmap that is selected into it
  std::uint32_t* pixels = nullptr;
  int width = 0;
  int height = 0;
};

}  // namespace nerida

#pragma once

#include "platform/bitmap_resources.h"
#include "platform/win32/handles.h"

namespace nerida {

// The system's bitmaps of pictures, 32 bits a pixel. Error 7 when the system has no memory for one.
UniqueBitmap bitmapOf(const Picture& picture);

// The other way round; empty when the bitmap cannot be read.
Picture pictureOf(HBITMAP bitmap);

}  // namespace nerida

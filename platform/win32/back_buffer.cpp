#include "platform/win32/back_buffer.h"

#include <algorithm>

#include "platform/error.h"

namespace nerida {

HDC BackBuffer::context() {
  if (!dc) dc.reset(CreateCompatibleDC(nullptr));
  if (!dc) throw Error(error::outOfMemory);
  return dc.get();
}

PixelCanvas BackBuffer::canvas(int neededWidth, int neededHeight) {
  if (neededWidth > width || neededHeight > height) {
    const int newWidth = std::max(width, neededWidth);
    const int newHeight = std::max(height, neededHeight);
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, newWidth, -newHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* start = nullptr;
    UniqueBitmap fresh(CreateDIBSection(context(), &info, DIB_RGB_COLORS, &start, nullptr, 0));
    if (!fresh) throw Error(error::outOfMemory);
    SelectObject(dc.get(), fresh.get());
    bitmap = std::move(fresh);
    pixels = static_cast<std::uint32_t*>(start);
    width = newWidth;
    height = newHeight;
  }
  GdiFlush();  // the system may still owe us text drawn earlier
  return {pixels, width, neededWidth, neededHeight};
}

void BackBuffer::copyTo(HDC target, int wantedWidth, int wantedHeight) {
  BitBlt(target, 0, 0, wantedWidth, wantedHeight, dc.get(), 0, 0, SRCCOPY);
}

}  // namespace nerida

#include "platform/win32/back_buffer.h"

#include <algorithm>

#include "platform/error.h"

namespace nerida {
namespace {

constexpr int usualWidth = 192;
constexpr int usualHeight = 40;

}  // namespace

HDC BackBuffer::context() {
  // Text is measured as it is drawn: on a picture of many colours, which a fresh context does not have.
  if (!bitmap) grow(usualWidth, usualHeight);
  return dc.get();
}

void BackBuffer::grow(int newWidth, int newHeight) {
  if (!dc) dc.reset(CreateCompatibleDC(nullptr));
  BITMAPINFO info = {};
  info.bmiHeader = {sizeof info.bmiHeader, newWidth, -newHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* start = nullptr;
  UniqueBitmap fresh(CreateDIBSection(dc.get(), &info, DIB_RGB_COLORS, &start, nullptr, 0));
  if (!dc || !fresh) throw Error(error::outOfMemory);
  SelectObject(dc.get(), fresh.get());
  bitmap = std::move(fresh);
  pixels = static_cast<std::uint32_t*>(start);
  width = newWidth;
  height = newHeight;
}

PixelCanvas BackBuffer::canvas(int neededWidth, int neededHeight) {
  if (neededWidth > width || neededHeight > height) grow(std::max(width, neededWidth), std::max(height, neededHeight));
  GdiFlush();  // the system may still owe us text drawn earlier
  return {pixels, width, neededWidth, neededHeight};
}

void BackBuffer::copyTo(HDC target, int wantedWidth, int wantedHeight) {
  BitBlt(target, 0, 0, wantedWidth, wantedHeight, dc.get(), 0, 0, SRCCOPY);
}

}  // namespace nerida

#include "platform/win32/picture_bitmap.h"

#include <algorithm>

#include "platform/error.h"

namespace nerida {
namespace {

// Rows from the top downwards.
BITMAPINFO layoutOf(int width, int height) {
  BITMAPINFO info = {};
  info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  return info;
}

}  // namespace

UniqueBitmap bitmapOf(const Picture& picture) {
  const BITMAPINFO info = layoutOf(picture.width, picture.height);
  void* start = nullptr;
  UniqueBitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &start, nullptr, 0));
  if (!bitmap) throw Error(error::outOfMemory);
  std::copy(picture.pixels.begin(), picture.pixels.end(), static_cast<std::uint32_t*>(start));
  return bitmap;
}

Picture pictureOf(HBITMAP bitmap) {
  BITMAP description = {};
  if (GetObjectW(bitmap, sizeof description, &description) == 0) return {};
  Picture picture{description.bmWidth, description.bmHeight, {}};
  picture.pixels.resize(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height));
  BITMAPINFO info = layoutOf(picture.width, picture.height);
  const UniqueMemoryDc dc(CreateCompatibleDC(nullptr));
  const int rows =
      GetDIBits(dc.get(), bitmap, 0, static_cast<UINT>(picture.height), picture.pixels.data(), &info, DIB_RGB_COLORS);
  return rows == picture.height ? std::move(picture) : Picture{};
}

}  // namespace nerida

#include "host/win32/drawing.h"

namespace nerida::host {

void blit(HDC dc, const RECT& area, const Picture& picture) {
  BITMAPINFO info = {};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = picture.width;
  info.bmiHeader.biHeight = -picture.height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  SetDIBitsToDevice(dc, area.left, area.top, static_cast<DWORD>(picture.width), static_cast<DWORD>(picture.height), 0,
                    0, 0, static_cast<UINT>(picture.height), picture.pixels.data(), &info, DIB_RGB_COLORS);
}

}  // namespace nerida::host

#include "platform/win32/image.h"

#include <windowsx.h>

#include <algorithm>

#include "platform/win32/form_window.h"
#include "platform/win32/paint_scope.h"
#include "platform/win32/window_class.h"

namespace nerida {

void SystemPicture::draw(HDC target, const RECT& area) const {
  BITMAP description = {};
  if (GetObjectW(bitmap.get(), sizeof description, &description) == 0) return;
  const double scale = std::min(static_cast<double>(area.right - area.left) / description.bmWidth,
                                static_cast<double>(area.bottom - area.top) / description.bmHeight);
  const int width = static_cast<int>(description.bmWidth * scale);
  const int height = static_cast<int>(description.bmHeight * scale);
  const UniqueMemoryDc source(CreateCompatibleDC(target));
  const Selected content(source.get(), bitmap.get());
  SetStretchBltMode(target, HALFTONE);
  SetBrushOrgEx(target, 0, 0, nullptr);
  StretchBlt(target, (area.left + area.right - width) / 2, (area.top + area.bottom - height) / 2, width, height,
             source.get(), 0, 0, description.bmWidth, description.bmHeight, SRCCOPY);
}

SystemImage::SystemImage(FormWindow& owner, const ControlLayout& row) : ControlOf(owner, row) {
  createOwn(pictureBoxClass, 0);
}

void SystemImage::setPicture(std::shared_ptr<const StoredPicture> picture) {
  shownPicture = std::dynamic_pointer_cast<const SystemPicture>(picture);
  InvalidateRect(window(), nullptr, TRUE);
}

void SystemImage::paintOn(HDC target) const {
  const SIZE extent = size();
  if (shownPicture) shownPicture->draw(target, {0, 0, extent.cx, extent.cy});
}

LRESULT SystemImage::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  switch (message) {
    case WM_PAINT: {
      const PaintScope painting(window());
      paintOn(painting.dc());
      return 0;
    }
    case WM_PRINTCLIENT:
      paintOn(reinterpret_cast<HDC>(wParam));
      return 0;
    case WM_SIZE:
      InvalidateRect(window(), nullptr, TRUE);
      break;
    case WM_SETCURSOR:
      if (!click) break;
      SetCursor(LoadCursorW(nullptr, IDC_HAND));
      return TRUE;
    case WM_LBUTTONDOWN:
      SetCapture(window());
      break;
    case WM_LBUTTONUP:
      if (GetCapture() != window()) break;
      ReleaseCapture();
      if (RECT client; GetClientRect(window(), &client) && PtInRect(&client, point)) form().raise(click);
      return 0;
    default:
      break;
  }
  return ControlOf::onMessage(message, wParam, lParam);
}

}  // namespace nerida

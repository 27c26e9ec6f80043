#include "platform/win32/image.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>

#include "platform/picture_scale.h"
#include "platform/win32/form_window.h"
#include "platform/win32/paint_scope.h"
#include "platform/win32/picture_bitmap.h"
#include "platform/win32/window_class.h"

namespace nerida {

namespace {

// As large as the room allows.
SIZE sizeIn(SIZE room, const Picture& picture) {
  const double scale =
      std::min(static_cast<double>(room.cx) / picture.width, static_cast<double>(room.cy) / picture.height);
  return {std::max(1L, std::lround(picture.width * scale)), std::max(1L, std::lround(picture.height * scale))};
}

}  // namespace

SystemImage::SystemImage(FormWindow& owner, const ControlLayout& row) : ControlOf(owner, row), current(row.bounds) {}

void SystemImage::create() { createOwn(pictureBoxClass, 0); }

void SystemImage::setPicture(std::shared_ptr<const StoredPicture> picture) {
  shownPicture = std::dynamic_pointer_cast<const SystemPicture>(picture);
  fitted.reset();
  InvalidateRect(window(), nullptr, TRUE);
}

void SystemImage::takePicture(std::shared_ptr<const StoredPicture> picture) {
  const Size size = picture ? picture->size() : Size{};
  current.width = form().scale().twipsX(size.width);
  current.height = form().scale().twipsY(size.height);
  place();
  setPicture(std::move(picture));
}

void SystemImage::setTop(Twips top) {
  current.top = top;
  place();
}

void SystemImage::place() {
  const RECT at = form().scale().pixels(current);
  SetWindowPos(window(), nullptr, at.left, at.top, at.right - at.left, at.bottom - at.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

SIZE SystemImage::fit() {
  const SIZE wanted = sizeIn(size(), shownPicture->content);
  if (fitted && fittedSize.cx == wanted.cx && fittedSize.cy == wanted.cy) return wanted;
  const Picture& content = shownPicture->content;
  const bool isSame = content.width == wanted.cx && content.height == wanted.cy;
  fitted = bitmapOf(isSame ? content : scaled(content, wanted.cx, wanted.cy));
  return fittedSize = wanted;
}

void SystemImage::paintOn(HDC target) {
  const SIZE room = size();
  if (!shownPicture || shownPicture->content.pixels.empty() || room.cx <= 0 || room.cy <= 0) return;
  const SIZE shown = fit();
  const UniqueMemoryDc source(CreateCompatibleDC(target));
  const Selected content(source.get(), fitted.get());
  BitBlt(target, (room.cx - shown.cx) / 2, (room.cy - shown.cy) / 2, shown.cx, shown.cy, source.get(), 0, 0, SRCCOPY);
}

LRESULT SystemImage::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  if (drawOnRequest(window(), message, wParam, [this](HDC target) { paintOn(target); })) return 0;
  switch (message) {
    case WM_NCHITTEST:
      if (!click) return HTTRANSPARENT;
      break;
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

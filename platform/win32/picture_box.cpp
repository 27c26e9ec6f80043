#include "platform/win32/picture_box.h"

#include <windowsx.h>

#include <utility>

#include "platform/win32/canvas.h"
#include "platform/win32/form_window.h"
#include "platform/win32/paint_scope.h"
#include "platform/win32/text.h"

namespace nerida {

void SystemPictureBox::create() { createOwn(pictureBoxClass, WS_CLIPCHILDREN); }

SystemPictureBox::~SystemPictureBox() {
  if (accessible != nullptr) accessible->disconnect();
}

void SystemPictureBox::repaint() {
  if (exists() && IsWindowVisible(window())) InvalidateRect(window(), nullptr, FALSE);
}

void SystemPictureBox::setFocus() { SetFocus(window()); }

void SystemPictureBox::setTooltip(const std::string& text) {
  tooltip = wide(text);
  offeredName.clear();
}

// In memory first: what changes under the pointer must not flicker. The drawing keeps its size; where the box is lower
// than it was laid out, its middle is seen.
void SystemPictureBox::draw(HDC target) {
  const SIZE extent = size();
  if (extent.cx <= 0 || extent.cy <= 0) return;
  BackBuffer& buffer = form().backBuffer();
  const int lost = form().scale().pixelsY(layout().bounds.height) - static_cast<int>(extent.cy);
  SystemCanvas canvas(buffer, extent, form().scale(), lost / 2, form().showsFocus());
  canvas.clear();
  form().raise(paint, static_cast<Canvas&>(canvas));
  buffer.copyTo(target, extent.cx, extent.cy);
}

LRESULT SystemPictureBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) {
    relayTooltip(message, wParam, lParam);
    return onMouse(message, lParam) ? 0 : passOn(message, wParam, lParam);
  }
  if (drawOnRequest(window(), message, wParam, [this](HDC target) { draw(target); })) return 0;
  switch (message) {
    case WM_ERASEBKGND:
      return TRUE;
    case WM_SETFOCUS:
      form().raise(gotFocus);
      announceFocus();
      return 0;
    case WM_KILLFOCUS:
      form().raise(lostFocus);
      return 0;
    case WM_KEYDOWN:
      if (form().handleNavigation(message, wParam, this) || onKey(wParam, lParam)) return 0;
      break;
    case WM_SHOWWINDOW:
      if (wParam == FALSE) onHidden();
      break;
    case WM_GETOBJECT:
      if (static_cast<LONG>(lParam) == OBJID_CLIENT && parts) {
        if (accessible == nullptr) accessible = new PartsAccessible(*this, *this);
        return accessible->answer(wParam);
      }
      break;
    case WM_NCDESTROY:
      if (accessible != nullptr) std::exchange(accessible, nullptr)->disconnect();
      break;
    default:
      break;
  }
  return passOn(message, wParam, lParam);
}

}  // namespace nerida

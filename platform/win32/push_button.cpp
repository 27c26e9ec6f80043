#include "platform/win32/push_button.h"

#include "platform/win32/form_window.h"
#include "platform/win32/text.h"

namespace nerida {

void SystemPushButton::create() {
  createStandard(L"BUTTON", wide(layout().text).c_str(), BS_PUSHBUTTON | BS_NOTIFY, 0);
}

bool SystemPushButton::takesFocus() const {
  const SIZE extent = size();
  return isReachable({extent.cx / 2, extent.cy / 2});
}

void SystemPushButton::onCommand(WORD notification) {
  if (notification == BN_CLICKED) form().raise(click);
}

LRESULT SystemPushButton::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (form().handleNavigation(message, wParam, this)) return 0;
  constexpr LPARAM repeated = LPARAM{1} << 30;
  if (message == WM_KEYDOWN && wParam == VK_RETURN) {
    if ((lParam & repeated) == 0) form().raise(click);
    return 0;
  }
  return ControlOf::onMessage(message, wParam, lParam);
}

}  // namespace nerida

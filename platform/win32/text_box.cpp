#include "platform/win32/text_box.h"

#include "platform/win32/accessible_name.h"
#include "platform/win32/form_window.h"
#include "platform/win32/text.h"

namespace nerida {

SystemTextBox::SystemTextBox(FormWindow& owner, const ControlLayout& row) : ControlOf(owner, row) {
  createStandard(L"EDIT", wide(row.text).c_str(), ES_AUTOHSCROLL, WS_EX_CLIENTEDGE);
}

std::string SystemTextBox::text() const {
  std::wstring content(static_cast<std::size_t>(GetWindowTextLengthW(window())), L'\0');
  const int length = GetWindowTextW(window(), content.data(), static_cast<int>(content.size()) + 1);
  content.resize(static_cast<std::size_t>(length));
  return utf8(content);
}

void SystemTextBox::setText(const std::string& content) { SetWindowTextW(window(), wide(content).c_str()); }

bool SystemTextBox::takesFocus() const {
  const SIZE extent = size();
  return isReachable({extent.cx / 2, extent.cy / 2});
}

LRESULT SystemTextBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_GETOBJECT) {
    if (const auto answer = answerWithName(window(), accessibleName(), wParam, lParam)) return *answer;
  }
  if (form().handleNavigation(message, wParam, this)) {
    return 0;
  }
  if (message == WM_KEYDOWN && wParam == VK_RETURN) {
    form().raise(enterPressed);
    return 0;
  }
  // Keys that are no text would only beep.
  if (message == WM_CHAR && (wParam == VK_TAB || wParam == VK_RETURN || wParam == VK_ESCAPE)) return 0;
  const bool selectsAll = form().showsFocus() || form().isDialog();
  if (message == WM_SETFOCUS && selectsAll) PostMessageW(window(), EM_SETSEL, 0, -1);
  return ControlOf::onMessage(message, wParam, lParam);
}

}  // namespace nerida

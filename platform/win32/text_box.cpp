#include "platform/win32/text_box.h"

#include <algorithm>

#include "platform/win32/accessible_name.h"
#include "platform/win32/form_window.h"
#include "platform/win32/handles.h"
#include "platform/win32/text.h"

namespace nerida {

void SystemTextBox::create() { createStandard(L"EDIT", wide(layout().text).c_str(), ES_AUTOHSCROLL, WS_EX_CLIENTEDGE); }

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

// The system writes a single line at the upper edge, however high the box is: the room above and below it is made part
// of the edge.
void SystemTextBox::centreText(RECT& client) {
  const HDC dc = GetDC(window());
  TEXTMETRICW metrics = {};
  {
    const Selected font(dc, form().font());
    GetTextMetricsW(dc, &metrics);
  }
  ReleaseDC(window(), dc);
  const int spare = std::max(static_cast<int>(client.bottom - client.top - metrics.tmHeight), 0);
  marginAbove = spare / 2;
  marginBelow = spare - marginAbove;
  client.top += marginAbove;
  client.bottom -= marginBelow;
}

void SystemTextBox::paintMargins() const {
  RECT text = {};
  GetClientRect(window(), &text);
  MapWindowPoints(window(), nullptr, reinterpret_cast<POINT*>(&text), 2);
  RECT whole = {};
  GetWindowRect(window(), &whole);
  OffsetRect(&text, -whole.left, -whole.top);
  const HDC dc = GetWindowDC(window());
  const RECT above = {text.left, text.top - marginAbove, text.right, text.top};
  const RECT below = {text.left, text.bottom, text.right, text.bottom + marginBelow};
  for (const RECT& margin : {above, below}) FillRect(dc, &margin, GetSysColorBrush(COLOR_WINDOW));
  ReleaseDC(window(), dc);
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
  if (message == WM_NCHITTEST) return HTCLIENT;
  const LRESULT result = ControlOf::onMessage(message, wParam, lParam);
  if (message == WM_NCCALCSIZE) centreText(*reinterpret_cast<RECT*>(lParam));
  if (message == WM_NCPAINT) paintMargins();
  if (message == WM_SETFONT) {
    SetWindowPos(window(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  }
  return result;
}

}  // namespace nerida

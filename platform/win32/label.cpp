#include "platform/win32/label.h"

#include <windowsx.h>

#include "platform/win32/accessible_name.h"
#include "platform/win32/form_window.h"
#include "platform/win32/paint_scope.h"
#include "platform/win32/text.h"

namespace nerida {

// Without a notification style the system's label lets clicks through to what is below, which is what we want of it as
// long as nobody asks for its own. On a dialog a label is one line, and shows where a long text goes on.
void SystemLabel::create() {
  const DWORD cut = form().isDialog() ? SS_ENDELLIPSIS : 0U;
  createStandard(L"STATIC", wide(layout().text).c_str(), SS_LEFT | SS_NOPREFIX | cut, 0);
}

void SystemLabel::setCaption(const std::string& text) { SetWindowTextW(window(), wide(text).c_str()); }

void SystemLabel::setBackground(Rgb color) {
  background.reset(CreateSolidBrush(static_cast<COLORREF>(color)));
  InvalidateRect(window(), nullptr, TRUE);
}

LRESULT SystemLabel::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  if (background) {
    if (message == WM_ERASEBKGND) return TRUE;
    if (drawOnRequest(window(), message, wParam, [this](HDC target) { draw(target); })) return 0;
    if (message == WM_SETTEXT) InvalidateRect(window(), nullptr, FALSE);
  }
  if (!hasMouse()) return ControlOf::onMessage(message, wParam, lParam);
  switch (message) {
    case WM_NCHITTEST:
      return HTCLIENT;
    case WM_MOUSEMOVE:
      if (form().pointerMoved(window(), point)) form().raise(mouseMove);
      break;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
      SetCapture(window());
      form().raise(mouseDown);
      return 0;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
      if (GetCapture() == window()) onButtonUp(point);
      return 0;
    case WM_GETOBJECT:
      if (const auto answer = answerAsCaption(window(), wParam, lParam)) return *answer;
      break;
    default:
      break;
  }
  return ControlOf::onMessage(message, wParam, lParam);
}

// As the system's label does; not all systems let it draw into another context. On a background of its own its letters
// stay dark in every colour scheme.
void SystemLabel::draw(HDC target) {
  const SIZE extent = size();
  RECT area = {0, 0, extent.cx, extent.cy};
  FillRect(target, &area, background ? background.get() : GetSysColorBrush(COLOR_BTNFACE));
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window())), L'\0');
  GetWindowTextW(window(), text.data(), static_cast<int>(text.size()) + 1);
  const Selected font(target, form().font());
  SetBkMode(target, TRANSPARENT);
  const COLORREF usual = GetSysColor(IsWindowEnabled(window()) ? COLOR_BTNTEXT : COLOR_GRAYTEXT);
  SetTextColor(target, background ? RGB(0, 0, 0) : usual);
  DrawTextW(target, text.c_str(), -1, &area, DT_LEFT | DT_NOPREFIX | DT_EXPANDTABS | DT_WORDBREAK);
}

void SystemLabel::onButtonUp(POINT point) {
  RECT client = {};
  const bool inside = GetClientRect(window(), &client) && PtInRect(&client, point);
  ReleaseCapture();
  form().raise(mouseUp);
  if (inside) form().raise(click);
}

void SystemLabel::onHidden() {
  if (GetCapture() == window()) ReleaseCapture();
}

}  // namespace nerida

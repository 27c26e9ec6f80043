#include "platform/win32/tooltips.h"

#include <commctrl.h>

#include "platform/win32/module.h"

namespace nerida {
namespace {

TTTOOLINFOW describe(HWND control, unsigned part) {
  TTTOOLINFOW tool = {};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.hwnd = control;
  tool.uId = part;
  return tool;
}

}  // namespace

HWND Tooltips::create() {
  INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_BAR_CLASSES};
  InitCommonControlsEx(&classes);
  return CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, TOOLTIPS_CLASSW, nullptr,
                         WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                         CW_USEDEFAULT, form, nullptr, moduleInstance(), nullptr);
}

void Tooltips::offer(HWND control, unsigned part, RECT area, const std::wstring& text) {
  under = {control, part};
  if (silent != under) silent.reset();
  if (silent) return;
  if (!known.insert({control, part}).second) return;
  if (!window) window.reset(create());
  TTTOOLINFOW tool = describe(control, part);
  tool.rect = area;
  tool.lpszText = const_cast<wchar_t*>(text.c_str());  // copied by the tooltip window
  SendMessageW(window.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void Tooltips::relay(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
  if (!window || (message == WM_MOUSEMOVE && silent)) return;
  if (message == WM_LBUTTONDOWN) {
    // Hidden alone, one that has been waiting to be shown would come up after the press: it is to find the pointer over
    // nothing.
    silent = under;
    forget(control);
    message = WM_MOUSEMOVE;
  }
  MSG relayed = {};
  relayed.hwnd = control;
  relayed.message = message;
  relayed.wParam = wParam;
  relayed.lParam = lParam;
  SendMessageW(window.get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

void Tooltips::pointerLeft() { silent.reset(); }

void Tooltips::forget(HWND control) {
  for (auto entry = known.lower_bound({control, 0}); entry != known.end() && entry->first == control;
       entry = known.erase(entry)) {
    TTTOOLINFOW tool = describe(control, entry->second);
    SendMessageW(window.get(), TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  }
}

void Tooltips::hide() {
  if (window) SendMessageW(window.get(), TTM_POP, 0, 0);
}

}  // namespace nerida

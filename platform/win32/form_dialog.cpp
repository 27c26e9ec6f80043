// A form that its user sizes, with a menu bar.
#include <algorithm>

#include "platform/win32/form_window.h"

namespace nerida {

// The height of other forms is that of the whole window already.
SIZE FormWindow::outerSize(DWORD style, DWORD extendedStyle) const {
  const int height = screenScale.pixelsY(layout.height);
  RECT outer = {0, 0, screenScale.pixelsX(layout.width), isDialog() ? height : 0};
  AdjustWindowRectEx(&outer, style, !menuBar.isEmpty(), extendedStyle);
  return {outer.right - outer.left, isDialog() ? outer.bottom - outer.top : height};
}

void FormWindow::keepLeastSize(MINMAXINFO& limits) const {
  const auto style = static_cast<DWORD>(GetWindowLongPtrW(hwnd, GWL_STYLE));
  const SIZE least = outerSize(style, static_cast<DWORD>(GetWindowLongPtrW(hwnd, GWL_EXSTYLE)));
  limits.ptMinTrackSize = {least.cx, least.cy};
}

RECT FormWindow::stretched(RECT at, const Stretch& stretch) const {
  RECT client = {};
  GetClientRect(hwnd, &client);
  const int wider = std::max(0, static_cast<int>(client.right) - screenScale.pixelsX(layout.width));
  const int higher = std::max(0, static_cast<int>(client.bottom) - screenScale.pixelsY(layout.height));
  at.left += wider * stretch.left / 100;
  at.top += higher * stretch.top / 100;
  at.right += wider * stretch.right / 100;
  at.bottom += higher * stretch.bottom / 100;
  return at;
}

void FormWindow::placeControls() {
  for (const auto& control : controls) control->reposition();
}

bool FormWindow::onMenu(UINT message, WPARAM wParam, LPARAM lParam) {
  if (menuBar.isEmpty()) return false;
  if (message == WM_INITMENUPOPUP) {
    menuBar.fill(reinterpret_cast<HMENU>(wParam));
    return true;
  }
  const MenuEntry* chosen = menuBar.entryAt(reinterpret_cast<HMENU>(lParam), static_cast<UINT>(wParam));
  if (chosen == nullptr || !chosen->isUsable() || !chosen->entries.empty()) return true;
  const std::string name = chosen->name;  // what is chosen may change the entries
  raise(menuBar.click, name, chosen->index);
  return true;
}

}  // namespace nerida

// Moving through a form with the keyboard: the loop that dispatches our messages is the host's and knows nothing of it.
#include "platform/win32/form_window.h"

namespace nerida {

bool FormWindow::handleNavigation(UINT message, WPARAM key, const NativeControl* from) {
  if (message != WM_KEYDOWN) return false;
  if (key == VK_TAB) {
    if (GetKeyState(VK_CONTROL) < 0 || GetKeyState(VK_MENU) < 0) return false;
    setShowsFocus(true);
    moveFocus(from, GetKeyState(VK_SHIFT) < 0);
    return true;
  }
  // Windows that one works in stay when Escape is pressed; what hangs below them or waits for an answer goes.
  if (key == VK_ESCAPE && frame != FormFrame::toolWindow && !isDialog()) {
    raise(closeRequested);
    return true;
  }
  return false;
}

void FormWindow::moveFocus(const NativeControl* from, bool backward) {
  const std::size_t count = controls.size();
  std::size_t position = backward ? 0 : count - 1;
  for (std::size_t i = 0; i < count; ++i) {
    if (controls[i].get() == from) position = i;
  }
  for (std::size_t step = 0; step < count; ++step) {
    position = (position + (backward ? count - 1 : 1)) % count;
    if (!controls[position]->isTabStop()) continue;
    SetFocus(controls[position]->window());
    return;
  }
}

void FormWindow::setShowsFocus(bool shows) {
  if (focusShown == shows) return;
  focusShown = shows;
  const HWND focus = GetFocus();
  if (IsChild(hwnd, focus)) InvalidateRect(focus, nullptr, FALSE);
}

// Folding a part of the form away takes the keyboard away from what was folded.
void FormWindow::leaveUnreachableFocus() {
  const NativeControl* focused = controlOf(GetFocus());
  if (focused == nullptr || focused->takesFocus()) return;
  lastFocus = nullptr;
  SetFocus(hwnd);
}

}  // namespace nerida

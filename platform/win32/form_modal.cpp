// A form that keeps its thread's other windows waiting.
#include "platform/win32/form_window.h"

namespace nerida {
namespace {

BOOL CALLBACK disableWindow(HWND window, LPARAM parameter) noexcept {
  auto& modal = *reinterpret_cast<std::pair<HWND, std::vector<HWND>*>*>(parameter);
  if (window == modal.first || GetWindow(window, GW_OWNER) == modal.first) return TRUE;
  if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
  modal.second->push_back(window);
  EnableWindow(window, FALSE);
  return TRUE;
}

}  // namespace

void FormWindow::centre(HWND after) {
  RECT work = {};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  const Size size = sizeInPixels();
  const int x = work.left + (work.right - work.left - size.width) / 2;
  const int y = work.top + (work.bottom - work.top - size.height) / 2;
  SetWindowPos(hwnd, after, x, y, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE | (after == nullptr ? SWP_NOZORDER : 0));
}

void FormWindow::showModal() {
  if (modal || realized() == nullptr) return;
  const ModuleLock lock;
  const Use use(*this);
  centre(HWND_TOPMOST);  // the toolbar is: the window that waits for an answer must not lie under it
  modal = true;
  setOwner(GetActiveWindow());
  std::pair<HWND, std::vector<HWND>*> enumeration(hwnd, &disabledForModal);
  EnumThreadWindows(GetCurrentThreadId(), disableWindow, reinterpret_cast<LPARAM>(&enumeration));
  ShowWindow(hwnd, SW_SHOW);
  SetForegroundWindow(hwnd);
  MSG message = {};
  while (modal) {
    const BOOL received = GetMessageW(&message, nullptr, 0, 0);
    if (received <= 0) {
      hide();
      if (received == 0) PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  endModal();
}

// It belongs to the window that was active: the system keeps it above that one, and desktops give it the keyboard. That
// ends with its modal display, or it would go with its owner.
void FormWindow::setOwner(HWND owner) {
  if (hwnd != nullptr && owner != hwnd) SetWindowLongPtrW(hwnd, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
}

// The others must be able to take the activation by the time the form goes, or another application gets it.
void FormWindow::endModal() {
  if (!modal) return;
  modal = false;
  for (const HWND window : disabledForModal) {
    if (IsWindow(window)) EnableWindow(window, TRUE);
  }
  disabledForModal.clear();
  setOwner(nullptr);
  PostMessageW(nullptr, WM_NULL, 0, 0);  // the loop may be asleep
}

}  // namespace nerida

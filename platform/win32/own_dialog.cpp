#include "platform/win32/own_dialog.h"

namespace nerida {
namespace {

constexpr const wchar_t* markName = L"NeridaOwnDialog";

BOOL CALLBACK closeIfOwned(HWND window, LPARAM owner) noexcept {
  const bool isOwned = GetWindow(window, GW_OWNER) == reinterpret_cast<HWND>(owner);
  if (isOwned && GetPropW(window, markName) != nullptr) PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
  return TRUE;
}

}  // namespace

void markOwnDialog(HWND dialog) { SetPropW(dialog, markName, dialog); }

void forgetOwnDialog(HWND dialog) { RemovePropW(dialog, markName); }

void closeDialogsOf(HWND owner) {
  EnumThreadWindows(GetCurrentThreadId(), closeIfOwned, reinterpret_cast<LPARAM>(owner));
}

}  // namespace nerida

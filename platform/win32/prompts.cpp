#include "platform/win32/prompts.h"

#include <windows.h>

#include <commdlg.h>

#include <array>

#include "platform/win32/module.h"
#include "platform/win32/own_dialog.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

constexpr const char* libraryName = "ActiveNeridaToolbar";

// The box lies above our topmost windows even when another window owns it. Without an owner it takes the input from
// all windows of the thread by itself.
UINT boxStyle(PromptButtons buttons) { return static_cast<UINT>(buttons) | MB_TASKMODAL | MB_TOPMOST; }

constexpr COLORREF white = RGB(255, 255, 255);

// The colours that the user mixed in the dialog, for as long as the process lives.
std::array<COLORREF, 16>& mixedColors() {
  static std::array<COLORREF, 16> colors = [] {
    std::array<COLORREF, 16> empty{};
    empty.fill(white);
    return empty;
  }();
  return colors;
}

UINT_PTR CALLBACK onDialogMessage(HWND dialog, UINT message, WPARAM, LPARAM) noexcept {
  if (message == WM_INITDIALOG) markOwnDialog(dialog);
  if (message == WM_NCDESTROY) forgetOwnDialog(dialog);
  return 0;
}

}  // namespace

PromptAnswer SystemPrompts::messageBox(const std::string& text, PromptButtons buttons, const std::string& title) {
  const ModuleLock lock;
  const std::wstring caption = wide(title.empty() ? libraryName : title);
  const int answer = MessageBoxW(GetActiveWindow(), wide(text).c_str(), caption.c_str(), boxStyle(buttons));
  noteActivePopupHides();
  if (answer == IDRETRY) return PromptAnswer::retry;
  return buttons == PromptButtons::ok ? PromptAnswer::ok : PromptAnswer::cancel;
}

// The owner may be destroyed while the dialog is open; the dialog then goes with it, without a choice.
std::optional<Rgb> SystemPrompts::chooseColor(WindowHandle owner, Rgb start) {
  const ModuleLock lock;
  CHOOSECOLORW request = {};
  request.lStructSize = sizeof request;
  request.hwndOwner = reinterpret_cast<HWND>(owner);
  request.rgbResult = static_cast<COLORREF>(start) & 0xFFFFFF;
  request.lpCustColors = mixedColors().data();
  request.Flags = CC_RGBINIT | CC_ANYCOLOR | CC_ENABLEHOOK;
  request.lpfnHook = onDialogMessage;
  if (!ChooseColorW(&request)) return std::nullopt;
  return static_cast<Rgb>(request.rgbResult);
}

}  // namespace nerida

#include "platform/win32/prompts.h"

#include <windows.h>

#include "platform/win32/module.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

constexpr const char* libraryName = "ActiveNeridaToolbar";

// The box lies above our topmost windows even when another window owns it. Without an owner it takes the input from
// all windows of the thread by itself.
UINT boxStyle(PromptButtons buttons) { return static_cast<UINT>(buttons) | MB_TASKMODAL | MB_TOPMOST; }

}  // namespace

PromptAnswer SystemPrompts::messageBox(const std::string& text, PromptButtons buttons, const std::string& title) {
  const ModuleLock lock;
  const std::wstring caption = wide(title.empty() ? libraryName : title);
  const int answer = MessageBoxW(GetActiveWindow(), wide(text).c_str(), caption.c_str(), boxStyle(buttons));
  if (answer == IDRETRY) return PromptAnswer::retry;
  return buttons == PromptButtons::ok ? PromptAnswer::ok : PromptAnswer::cancel;
}

}  // namespace nerida

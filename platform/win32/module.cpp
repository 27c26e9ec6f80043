#include "platform/win32/module.h"

#include <atomic>

namespace nerida {

namespace {

std::atomic<long> locks = 0;
int losingFocusDepth = 0;  // user-interface thread only
std::optional<DWORD> activePopupHidAt;

}  // namespace

HINSTANCE moduleInstance() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const wchar_t*>(&locks), &module);
  return module;
}

void lockModule() { ++locks; }
void unlockModule() { --locks; }
long moduleLocks() { return locks; }

bool applicationIsLosingFocus() { return losingFocusDepth > 0; }
void noteActivePopupHides() { activePopupHidAt = GetTickCount(); }
std::optional<DWORD> sinceActivePopupHid() {
  if (!activePopupHidAt) return std::nullopt;
  return GetTickCount() - *activePopupHidAt;
}
LosingFocus::LosingFocus() { ++losingFocusDepth; }
LosingFocus::~LosingFocus() { --losingFocusDepth; }

}  // namespace nerida

#pragma once

#include <windows.h>

#include <optional>

namespace nerida {

// The module (DLL or program) that this code was linked into.
HINSTANCE moduleInstance();

// How many things need the module's code to stay: running window procedures, modal loops, class factory locks.
void lockModule();
void unlockModule();
long moduleLocks();

class ModuleLock {
 public:
  ModuleLock() { lockModule(); }
  ~ModuleLock() { unlockModule(); }
  ModuleLock(const ModuleLock&) = delete;
  ModuleLock& operator=(const ModuleLock&) = delete;
};

// True while some window procedure is inside the message that tells it that the application loses the focus. In that
// time the system still lets us take the foreground back, which the user does not want.
bool applicationIsLosingFocus();

// The active window, a popup or what waits for an answer, goes; and how many milliseconds ago that was.
void noteActivePopupHides();
std::optional<DWORD> sinceActivePopupHid();

class LosingFocus {
 public:
  LosingFocus();
  ~LosingFocus();
  LosingFocus(const LosingFocus&) = delete;
  LosingFocus& operator=(const LosingFocus&) = delete;
};

}  // namespace nerida

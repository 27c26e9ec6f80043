#pragma once

#include <windows.h>

namespace nerida {

// A dialog of the system's that we opened for a window of ours: it is closed without a choice when its owner is hidden,
// since nobody would see any more what it asks about.
void markOwnDialog(HWND dialog);
void forgetOwnDialog(HWND dialog);
void closeDialogsOf(HWND owner);

}  // namespace nerida

#pragma once

#include <windows.h>

#include <span>

namespace nerida {

// Pops a menu up with its top-right corner at a screen point and waits for a choice: its index among the captions, or
// -1. The caption "-" is a separator; others keep their blanks and their "&" marks.
int trackPopupMenu(HWND owner, std::span<const char* const> captions, POINT topRight);

}  // namespace nerida

#pragma once

#include <windows.h>

#include <objbase.h>

#include <nlohmann/json.hpp>
#include <string>

namespace probe {

using Json = nlohmann::json;

std::string utf8(const wchar_t* text, int length = -1);

// All top-level windows: handle, process, class, title, rectangle, visible, enabled, topmost.
Json topLevelWindows();
Json describeWindow(HWND window);

// The accessible elements of a window and of its child windows, flat: name, role, state bits, rectangle, default
// action, and where to find them again (window and child number).
Json accessibleElements(HWND window);
// Runs the default action of an element. Returns the status.
long pressElement(HWND window, long child);

}  // namespace probe

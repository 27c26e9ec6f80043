#pragma once

#include <windows.h>

#include <objbase.h>

#include <nlohmann/json.hpp>
#include <string>

namespace probe {

using Json = nlohmann::json;

std::string utf8(const wchar_t* text, int length = -1);
std::string classOf(HWND window);

// The top-level windows, visible or not: handle, process, class, title, rectangle, visible, enabled, topmost. Those of
// one class, or of all of them if it has no name.
Json topLevelWindows(bool onlyVisible, const std::string& className);
Json describeWindow(HWND window);

// The accessible elements of a window and of its child windows, flat: name, role, state bits, rectangle, default
// action, value, and where to find them again (window and child number).
Json accessibleElements(HWND window);
// One of them as it is now, without action and value; null when it is no longer there to be seen.
Json accessibleElement(HWND root, HWND window, long child);
// The first one of that role (0: of any) and name; null when there is none.
Json findElement(HWND window, long role, const std::string& name);
// The names of those of that role that have one of the state's bits, or of all of that role if it has none.
Json namesInState(HWND window, long role, long state);
// Runs the default action of an element. Returns the status.
long pressElement(HWND window, long child);
// Gives an element the keyboard. Returns the status.
long focusElement(HWND window, long child);

}  // namespace probe

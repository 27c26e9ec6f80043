#pragma once

#include <map>
#include <string>

namespace nerida {

// What a host counts on in its own process and a guest must leave alone, by name, as text that can be compared:
// folder, locale, arithmetic, errors, awareness of the screen's resolution, keyboard.
std::map<std::string, std::string> processState();

// How many handles of windows and menus, and of pens, fonts and pictures, exist: of this process where the system can
// tell, else on the whole desktop.
struct HandleCounts {
  long user = 0;
  long drawing = 0;
};
HandleCounts handleCounts();

}  // namespace nerida

#pragma once

#include <string>

#include "platform/units.h"

namespace nerida {

// How a program that is started shows its window.
enum class ShowCommand { hidden = 0, normal = 1 };

// The system's viewers.
class Shell {
 public:
  virtual ~Shell() = default;
  // Opens a help file at its contents and index page. Where it is missing or the system has no viewer for it, the page
  // "Help\\index.htm" beside it opens instead, if there is one. Nothing to open is not an error. Never waits for
  // anybody.
  virtual void openHelp(WindowHandle owner, const std::string& file) = 0;
  // Opens a file or an address with the program that is registered for it. False when the system cannot.
  virtual bool open(WindowHandle owner, const std::string& target, const std::string& workingFolder,
                    ShowCommand show) = 0;
};

}  // namespace nerida

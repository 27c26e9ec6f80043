#pragma once

#include <string>

#include "platform/units.h"

namespace nerida {

// The system's help viewer.
class Shell {
 public:
  virtual ~Shell() = default;
  // Opens a help file at its contents and index page. A missing file or viewer is not an error: nothing opens.
  virtual void openHelp(WindowHandle owner, const std::string& file) = 0;
};

}  // namespace nerida

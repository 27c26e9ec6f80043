#pragma once

#include "platform/shell.h"

namespace nerida {

class WindowsShell : public Shell {
 public:
  void openHelp(WindowHandle owner, const std::string& file) override;
};

}  // namespace nerida

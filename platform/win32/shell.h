#pragma once

#include "platform/shell.h"

namespace nerida {

class SystemShell : public Shell {
 public:
  void openHelp(WindowHandle owner, const std::string& file) override;
};

}  // namespace nerida

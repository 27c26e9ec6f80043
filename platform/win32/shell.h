#pragma once

#include "platform/shell.h"

namespace nerida {

class SystemShell : public Shell {
 public:
  void openHelp(WindowHandle owner, const std::string& file) override;
  bool open(WindowHandle owner, const std::string& target, const std::string& workingFolder, ShowCommand show) override;
};

}  // namespace nerida

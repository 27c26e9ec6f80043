#pragma once

#include "platform/registry.h"

namespace nerida {

class WindowsRegistry : public Registry {
 public:
  std::unique_ptr<RegistryKey> openLocalMachine() override;
};

}  // namespace nerida

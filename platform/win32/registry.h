#pragma once

#include "platform/registry.h"

namespace nerida {

class SystemRegistry : public Registry {
 public:
  std::unique_ptr<RegistryKey> openLocalMachine() override;
};

}  // namespace nerida

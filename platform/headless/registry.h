#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/registry.h"

namespace nerida::headless {

// A registry of keys by their full path ("Software\Tarnwell"), with all the bytes of their values.
class MemoryRegistry : public Registry {
 public:
  std::unique_ptr<RegistryKey> openLocalMachine() override;

  std::map<std::string, std::vector<RegistryValue>> keys;
  // Status codes other than "not found" for opening a key, and for reading its value at an index.
  std::map<std::string, long> openFailures;
  std::map<std::pair<std::string, int>, long> valueFailures;
};

}  // namespace nerida::headless

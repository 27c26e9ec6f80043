#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace nerida {

struct RegistryValue {
  std::string name;
  std::string data;  // the bytes up to the first NUL, read as text of the system's code page
};

// An open key of the machine-wide registry (32-bit view), or the user's of the same path where the machine has none;
// closed when it goes away.
class RegistryKey {
 public:
  virtual ~RegistryKey() = default;
  // Opens a direct subkey for reading. status is 0, or the system's status code, and then there is no key.
  virtual std::unique_ptr<RegistryKey> open(const std::string& name, long& status) = 0;
  // The value at an index from 0 upwards. status is 0, or the system's status code: no more values, or a name or data
  // that does not fit the buffers of 256 characters and 256 bytes.
  virtual std::optional<RegistryValue> value(int index, long& status) = 0;
};

class Registry {
 public:
  virtual ~Registry() = default;
  virtual std::unique_ptr<RegistryKey> openLocalMachine() = 0;
};

}  // namespace nerida

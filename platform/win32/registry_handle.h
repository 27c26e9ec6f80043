#pragma once

#include <windows.h>

#include <utility>

namespace nerida {

// An open registry key, or a predefined one (which closing leaves alone).
class RegistryHandle {
 public:
  explicit RegistryHandle(HKEY key = nullptr) : key(key) {}
  RegistryHandle(RegistryHandle&& other) noexcept : key(std::exchange(other.key, nullptr)) {}
  RegistryHandle& operator=(RegistryHandle&& other) noexcept {
    std::swap(key, other.key);
    return *this;
  }
  ~RegistryHandle() {
    if (key != nullptr) RegCloseKey(key);
  }

  HKEY get() const { return key; }
  HKEY* put() { return &key; }

 private:
  HKEY key;
};

}  // namespace nerida

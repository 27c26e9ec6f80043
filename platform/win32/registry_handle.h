#pragma once

#include <windows.h>

#include <string>
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

  // Sets one value of the key, the key's own where the name is empty. Answers the system's status.
  LSTATUS setText(const std::wstring& name, const std::wstring& text) const {
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    return RegSetValueExW(key, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                          static_cast<DWORD>(bytes));
  }

 private:
  HKEY key;
};

}  // namespace nerida

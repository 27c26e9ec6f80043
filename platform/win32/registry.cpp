#include "platform/win32/registry.h"

#include <windows.h>

#include <algorithm>
#include <array>

#include "platform/win32/registry_handle.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

constexpr DWORD nameCapacity = 256;  // characters, with the closing NUL
constexpr DWORD dataCapacity = 256;  // bytes in the system's code page, with the closing NUL where there is one

using DataBuffer = std::array<BYTE, dataCapacity * sizeof(wchar_t)>;

bool isText(DWORD type) { return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ; }

std::wstring fromCodePage(const BYTE* bytes, DWORD size) {
  const auto* text = reinterpret_cast<const char*>(bytes);
  const int needed = MultiByteToWideChar(CP_ACP, 0, text, static_cast<int>(size), nullptr, 0);
  std::wstring result(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text, static_cast<int>(size), result.data(), needed);
  return result;
}

std::wstring dataText(DWORD type, const DataBuffer& data, DWORD size) {
  if (!isText(type)) return fromCodePage(data.data(), size);
  return std::wstring(reinterpret_cast<const wchar_t*>(data.data()), size / sizeof(wchar_t));
}

// The size that the data has in the code page, which is what the capacity is about.
DWORD dataSize(DWORD type, const std::wstring& text, DWORD size) {
  if (!isText(type) || text.empty()) return size;
  const int length = static_cast<int>(text.size());
  return static_cast<DWORD>(WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr));
}

RegistryHandle openBelow(const RegistryHandle& parent, const std::string& name, long& status) {
  RegistryHandle child;
  status = parent.get() == nullptr
               ? ERROR_FILE_NOT_FOUND
               : RegOpenKeyExW(parent.get(), wide(name).c_str(), 0, KEY_READ | KEY_WOW64_32KEY, child.put());
  return child;
}

// Without the right to install for everybody people install for themselves, and the entries stand in their own part of
// the registry. Where both have a key, the machine's is read.
class SystemRegistryKey : public RegistryKey {
 public:
  SystemRegistryKey(RegistryHandle machine, RegistryHandle user) : machine(std::move(machine)), user(std::move(user)) {}

  std::unique_ptr<RegistryKey> open(const std::string& name, long& status) override {
    long userStatus = 0;
    RegistryHandle machineChild = openBelow(machine, name, status);
    RegistryHandle userChild = openBelow(user, name, userStatus);
    if (status != ERROR_SUCCESS && userStatus != ERROR_SUCCESS) return nullptr;
    status = ERROR_SUCCESS;
    return std::make_unique<SystemRegistryKey>(std::move(machineChild), std::move(userChild));
  }

  std::optional<RegistryValue> value(int index, long& status) override {
    const HKEY key = machine.get() != nullptr ? machine.get() : user.get();
    std::array<wchar_t, nameCapacity> name;
    DWORD nameLength = nameCapacity;
    DataBuffer data;
    DWORD size = data.size();
    DWORD type = REG_NONE;
    status =
        RegEnumValueW(key, static_cast<DWORD>(index), name.data(), &nameLength, nullptr, &type, data.data(), &size);
    if (status != ERROR_SUCCESS) return std::nullopt;
    const std::wstring text = dataText(type, data, size);
    if (dataSize(type, text, size) > dataCapacity) {
      status = ERROR_MORE_DATA;
      return std::nullopt;
    }
    return RegistryValue{utf8({name.data(), nameLength}), utf8(text.substr(0, text.find(L'\0')))};
  }

 private:
  RegistryHandle machine;
  RegistryHandle user;
};

}  // namespace

std::unique_ptr<RegistryKey> SystemRegistry::openLocalMachine() {
  return std::make_unique<SystemRegistryKey>(RegistryHandle(HKEY_LOCAL_MACHINE), RegistryHandle(HKEY_CURRENT_USER));
}

}  // namespace nerida

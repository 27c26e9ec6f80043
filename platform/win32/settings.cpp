#include "platform/win32/settings.h"

#include <windows.h>

#include "platform/error.h"
#include "platform/win32/registry_handle.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

std::wstring sectionPath(const std::string& section) {
  return L"Software\\VB and VBA Program Settings\\Zephra\\" + wide(section);
}

constexpr DWORD textTypes = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;

}  // namespace

std::string SystemSettings::read(const std::string& section, const std::string& key, const std::string& fallback) {
  const std::wstring path = sectionPath(section);
  const std::wstring name = wide(key);
  DWORD size = 0;
  LONG status = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), textTypes, nullptr, nullptr, &size);
  if (status != ERROR_SUCCESS) return fallback;
  std::wstring text(size / sizeof(wchar_t) + 1, L'\0');
  const std::size_t room = text.size() * sizeof(wchar_t);
  size = static_cast<DWORD>(room);
  status = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), textTypes, nullptr, text.data(), &size);
  return status == ERROR_SUCCESS ? utf8(text.substr(0, text.find(L'\0'))) : fallback;
}

void SystemSettings::write(const std::string& section, const std::string& key, const std::string& text) {
  RegistryHandle handle;
  LONG status = RegCreateKeyExW(HKEY_CURRENT_USER, sectionPath(section).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                KEY_SET_VALUE, nullptr, handle.put(), nullptr);
  if (status != ERROR_SUCCESS) throw Error(error::invalidCall);
  status = handle.setText(wide(key), wide(text));
  if (status != ERROR_SUCCESS) throw Error(error::invalidCall);
}

}  // namespace nerida

#include "host/search/component/search_paths.h"

#include <shlobj.h>
#include <windows.h>

#include <cwchar>

namespace nerida::host {
namespace {

constexpr const wchar_t* installationKey = L"Software\\Tarnwell\\Zephra";

std::wstring fromAnsi(const char* text) {
  std::wstring result(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text, -1, result.data(), static_cast<int>(result.size()));
  if (!result.empty()) result.pop_back();  // the end mark
  return result;
}

// The machine's installation, or, where there is none, the user's own. Null when there is neither.
HKEY openInstallation() {
  for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, installationKey, 0, KEY_READ | KEY_WOW64_32KEY, &key) == ERROR_SUCCESS) return key;
  }
  return nullptr;
}

}  // namespace

// Read the way the control reads it: in the 32-bit view, by the beginning of the value's name, the last one wins, and
// the data are text up to the first NUL, whatever their type.
std::wstring dictionaryFolder() {
  const HKEY key = openInstallation();
  if (key == nullptr) return {};
  std::wstring folder;
  for (DWORD index = 0;; ++index) {
    wchar_t name[256];
    wchar_t data[257] = {};
    DWORD nameLength = 256, dataLength = 256 * sizeof(wchar_t), type = REG_NONE;
    if (RegEnumValueW(key, index, name, &nameLength, nullptr, &type, reinterpret_cast<BYTE*>(data), &dataLength) !=
        ERROR_SUCCESS) {
      break;
    }
    if (std::wcsncmp(name, L"Dic", 3) != 0) continue;
    folder = type == REG_SZ || type == REG_EXPAND_SZ ? data : fromAnsi(reinterpret_cast<const char*>(data));
  }
  RegCloseKey(key);
  return folder;
}

std::wstring userFolder() {
  wchar_t folder[MAX_PATH];
  if (FAILED(SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder))) return {};
  return std::wstring(folder) + L"\\Zephra";
}

}  // namespace nerida::host

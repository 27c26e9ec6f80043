#include "host/search/component/search_paths.h"

#include <shlobj.h>
#include <windows.h>

#include <cstring>

namespace nerida::host {
namespace {

constexpr const wchar_t* installationKey = L"Software\\Tarnwell\\Zephra";

std::wstring fromAnsi(const char* text) {
  std::wstring result(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text, -1, result.data(), static_cast<int>(result.size()));
  if (!result.empty()) result.pop_back();  // the end mark
  return result;
}

}  // namespace

// Read the way the control reads it: in the 32-bit view, by the beginning of the value's name, the last one wins, and
// the data are text up to the first NUL, whatever their type.
std::wstring dictionaryFolder() {
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, installationKey, 0, KEY_READ | KEY_WOW64_32KEY, &key) != ERROR_SUCCESS) {
    return {};
  }
  std::wstring folder;
  for (DWORD index = 0;; ++index) {
    char name[256];
    char data[257] = {};
    DWORD nameLength = sizeof name, dataLength = 256;
    if (RegEnumValueA(key, index, name, &nameLength, nullptr, nullptr, reinterpret_cast<BYTE*>(data), &dataLength) !=
        ERROR_SUCCESS) {
      break;
    }
    if (std::strncmp(name, "Dic", 3) == 0) folder = fromAnsi(data);
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

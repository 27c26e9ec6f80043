#include "tests/windows/com/installation.h"

#include <windows.h>

namespace nerida {
namespace {

constexpr const wchar_t* product = L"Software\\Tarnwell\\Zephra";
constexpr const wchar_t* version = L"Software\\Tarnwell\\Zephra\\1.0";

// The control reads the 32-bit view, whatever its own bitness is.
void write(const wchar_t* key, const wchar_t* name, const std::wstring& text) {
  HKEY handle = nullptr;
  RegCreateKeyExW(HKEY_LOCAL_MACHINE, key, 0, nullptr, 0, KEY_SET_VALUE | KEY_WOW64_32KEY, nullptr, &handle, nullptr);
  RegSetValueExW(handle, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                 static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
  RegCloseKey(handle);
}

void removeAll() {
  RegDeleteKeyExW(HKEY_LOCAL_MACHINE, version, KEY_WOW64_32KEY, 0);
  RegDeleteKeyExW(HKEY_LOCAL_MACHINE, product, KEY_WOW64_32KEY, 0);
}

}  // namespace

Installation::Installation() {
  removeAll();
  for (const wchar_t* name : {L"Dictionary", L"Styles", L"System", L"Help"}) write(product, name, L"C:\\Zephra");
  write(product, L"LiveText", L"Zephra 1.0");
  write(version, L"Models", L"C:\\Zephra\\Models");
}

Installation::~Installation() { removeAll(); }

}  // namespace nerida

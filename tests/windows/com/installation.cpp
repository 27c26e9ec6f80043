#include "tests/windows/com/installation.h"

#include <windows.h>

#include <array>
#include <fstream>
#include <stdexcept>

#include "platform/win32/registry_handle.h"

namespace nerida {
namespace {

constexpr const wchar_t* product = L"Software\\Tarnwell\\Zephra";
constexpr const wchar_t* version = L"Software\\Tarnwell\\Zephra\\1.0";

// The control reads the 32-bit view, whatever its own bitness is.
void write(const wchar_t* key, const wchar_t* name, const std::wstring& text) {
  RegistryHandle handle;
  RegCreateKeyExW(HKEY_LOCAL_MACHINE, key, 0, nullptr, 0, KEY_SET_VALUE | KEY_WOW64_32KEY, nullptr, handle.put(),
                  nullptr);
  handle.setText(name, text);
}

// The search component that every start of the control asks for categories.
void callSearchServer(const char* entry) {
  const std::wstring path = NERIDA_PREPARED_SEARCH;
  const HMODULE module = LoadLibraryW((path.starts_with(L'/') ? L"Z:" + path : path).c_str());
  if (module == nullptr) throw std::runtime_error("the prepared search component cannot be loaded");
  reinterpret_cast<HRESULT(WINAPI*)()>(reinterpret_cast<void*>(GetProcAddress(module, entry)))();
  FreeLibrary(module);
}

// The smallest picture there is stands for the catalog's logo.
void writeLogo() {
  CreateDirectoryW(L"C:\\Zephra", nullptr);
  constexpr std::array<unsigned char, 58> onePixel = {'B', 'M', 58, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0, 40,
                                                      0,   0,   0,  1, 0, 0, 0, 1, 0, 0, 0,  1, 0, 24};
  std::ofstream("C:\\Zephra\\zpcatbut.bmp", std::ios::binary)
      .write(reinterpret_cast<const char*>(onePixel.data()), onePixel.size());
}

void removeAll() {
  callSearchServer("DllUnregisterServer");
  RegDeleteKeyExW(HKEY_LOCAL_MACHINE, version, KEY_WOW64_32KEY, 0);
  RegDeleteKeyExW(HKEY_LOCAL_MACHINE, product, KEY_WOW64_32KEY, 0);
}

}  // namespace

Installation::Installation() {
  removeAll();
  for (const wchar_t* name : {L"Dictionary", L"Styles", L"System", L"Help"}) write(product, name, L"C:\\Zephra");
  write(product, L"LiveText", L"Zephra 1.0");
  write(version, L"Models", L"C:\\Zephra\\Models");
  writeLogo();
  callSearchServer("DllRegisterServer");
}

Installation::~Installation() { removeAll(); }

}  // namespace nerida

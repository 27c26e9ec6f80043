#include "tests/windows/com/module_file.h"

#include <shellapi.h>

#include <stdexcept>

namespace nerida {

std::wstring controlFile() {
  int count = 0;
  wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  if (count < 2) throw std::runtime_error("the control's file is missing on the command line");
  const std::wstring path = arguments[count - 1];
  LocalFree(arguments);
  return path.starts_with(L'/') ? L"Z:" + path : path;  // Wine shows the machine's root as drive Z
}

ControlModule::ControlModule() : module(LoadLibraryW(controlFile().c_str())) {
  if (module == nullptr) throw std::runtime_error("the control's file cannot be loaded");
}

ControlModule::~ControlModule() { FreeLibrary(module); }

template <typename Function>
Function ControlModule::entry(const char* name) const {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

HRESULT ControlModule::call(const char* name) const { return entry<HRESULT(WINAPI*)()>(name)(); }

HRESULT ControlModule::install(bool install, const wchar_t* commandLine) const {
  return entry<HRESULT(WINAPI*)(BOOL, const wchar_t*)>("DllInstall")(install, commandLine);
}

ComPtr<IClassFactory> ControlModule::factory() const {
  ComPtr<IClassFactory> result;
  const auto getClassObject = entry<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>("DllGetClassObject");
  getClassObject(CLSID_NeridaWindow, IID_IClassFactory, result.putVoid());
  return result;
}

ComPtr<_NeridaWindow> ControlModule::create() const {
  ComPtr<_NeridaWindow> result;
  factory()->CreateInstance(nullptr, IID__NeridaWindow, result.putVoid());
  return result;
}

}  // namespace nerida

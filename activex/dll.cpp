// The module's entry points.

#include <ActiveNeridaToolbar_h.h>
#include <olectl.h>
#include <windows.h>

#include <cwchar>

#include "activex/border.h"
#include "activex/class_factory.h"
#include "activex/process_library.h"
#include "activex/registration.h"
#include "platform/win32/module.h"

using nerida::border;
using nerida::Scope;

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void* processEnds) {
  if (reason == DLL_PROCESS_DETACH && processEnds == nullptr) nerida::dropProcessLibrary();
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (classId != CLSID_NeridaWindow) return CLASS_E_CLASSNOTAVAILABLE;
  return border([&] { return nerida::classFactory().QueryInterface(id, result); });
}

STDAPI DllCanUnloadNow() { return nerida::moduleLocks() == 0 ? S_OK : S_FALSE; }

// For all users where that is allowed, else for the current one.
STDAPI DllRegisterServer() {
  return border([] {
    if (SUCCEEDED(nerida::registerServer(Scope::machine))) return S_OK;
    return SUCCEEDED(nerida::registerServer(Scope::user)) ? S_OK : SELFREG_E_CLASS;
  });
}

STDAPI DllUnregisterServer() {
  return border([] {
    const HRESULT machine = nerida::unregisterServer(Scope::machine);
    const HRESULT user = nerida::unregisterServer(Scope::user);
    return FAILED(machine) ? machine : user;
  });
}

// "regsvr32 /n /i:user" registers for the current user only.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
  const bool forUser = commandLine != nullptr && _wcsicmp(commandLine, L"user") == 0;
  if (!forUser) return install ? DllRegisterServer() : DllUnregisterServer();
  return border([&] { return install ? nerida::registerServer(Scope::user) : nerida::unregisterServer(Scope::user); });
}

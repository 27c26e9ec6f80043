// The entry points that all our in-process servers share.
#include "host/win32/server.h"

#include <olectl.h>

#include <cwchar>

namespace nerida::host {

std::atomic<long> moduleUses = 0;

HINSTANCE thisModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&thisModule), &module);
  return module;
}

std::wstring modulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(thisModule(), path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

namespace {

class Factory final : public IClassFactory {
 public:
  explicit Factory(const ServerClass& made) : made(made) {}

  STDMETHODIMP QueryInterface(REFIID id, void** result) override {
    if (result == nullptr) return E_POINTER;
    *result = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
    if (*result == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** result) override {
    if (result == nullptr) return E_POINTER;
    *result = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return guarded([&] {
      IUnknown* object = made.create();
      const HRESULT status = object->QueryInterface(id, result);
      object->Release();
      return status;
    });
  }
  STDMETHODIMP LockServer(BOOL lock) override {
    lock != FALSE ? ++moduleUses : --moduleUses;
    return S_OK;
  }

 private:
  ~Factory() = default;

  const ServerClass& made;
  std::atomic<ULONG> references = 1;
  ModuleUse use;
};

// For all users where that is allowed, else for the current one.
HRESULT registerWhereAllowed() {
  const HRESULT status = registerClasses(HKEY_LOCAL_MACHINE);
  return SUCCEEDED(status) ? status : registerClasses(HKEY_CURRENT_USER);
}

HRESULT unregisterEverywhere() {
  const HRESULT machine = unregisterClasses(HKEY_LOCAL_MACHINE);
  const HRESULT user = unregisterClasses(HKEY_CURRENT_USER);
  return FAILED(machine) ? machine : user;
}

}  // namespace
}  // namespace nerida::host

using namespace nerida::host;

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  return guarded([&] {
    for (const ServerClass& each : serverClasses()) {
      if (each.id != classId) continue;
      auto* factory = new Factory(each);
      const HRESULT status = factory->QueryInterface(id, result);
      factory->Release();
      return status;
    }
    return CLASS_E_CLASSNOTAVAILABLE;
  });
}

STDAPI DllCanUnloadNow() { return moduleUses == 0 ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() { return guarded(registerWhereAllowed); }

STDAPI DllUnregisterServer() { return guarded(unregisterEverywhere); }

// "regsvr32 /n /i:user" registers for the current user only.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
  const bool forUser = commandLine != nullptr && _wcsicmp(commandLine, L"user") == 0;
  if (!forUser) return install != FALSE ? DllRegisterServer() : DllUnregisterServer();
  return guarded(
      [&] { return install != FALSE ? registerClasses(HKEY_CURRENT_USER) : unregisterClasses(HKEY_CURRENT_USER); });
}

#pragma once

#include <ole2.h>
#include <windows.h>

namespace nerida {

// A class that this process makes itself, in front of any that is registered. For as long as it lives.
class LocalClass {
 public:
  // create answers a new object with one reference.
  LocalClass(const CLSID& id, IUnknown* (*create)()) : factory(create) {
    CoInitialize(nullptr);
    CoRegisterClassObject(id, &factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie);
  }
  ~LocalClass() {
    CoRevokeClassObject(cookie);
    CoUninitialize();
  }
  LocalClass(const LocalClass&) = delete;
  LocalClass& operator=(const LocalClass&) = delete;

  void setPresent(bool present) { factory.present = present; }

 private:
  // Nobody but its owner deletes it.
  class Factory final : public IClassFactory {
   public:
    explicit Factory(IUnknown* (*create)()) : create(create) {}
    virtual ~Factory() = default;
    STDMETHODIMP QueryInterface(REFIID id, void** result) override {
      *result = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
      return *result != nullptr ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** result) override {
      if (!present) return REGDB_E_CLASSNOTREG;
      IUnknown* object = create();
      const HRESULT status = object->QueryInterface(id, result);
      object->Release();
      return status;
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

    IUnknown* (*create)();
    bool present = true;
  };

  Factory factory;
  DWORD cookie = 0;
};

}  // namespace nerida

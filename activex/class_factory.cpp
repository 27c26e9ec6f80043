#include "activex/class_factory.h"

#include "activex/border.h"
#include "activex/nerida_control.h"
#include "platform/win32/module.h"

namespace nerida {

STDMETHODIMP ClassFactory::QueryInterface(REFIID id, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
  if (*result == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

// References keep the module; the factory itself needs none.
STDMETHODIMP_(ULONG) ClassFactory::AddRef() {
  lockModule();
  return 2;
}

STDMETHODIMP_(ULONG) ClassFactory::Release() {
  unlockModule();
  return 1;
}

STDMETHODIMP ClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (outer != nullptr) return CLASS_E_NOAGGREGATION;
  return border([&] {
    auto* control = new NeridaControl();
    const HRESULT status = control->QueryInterface(id, result);
    control->Release();
    return status;
  });
}

STDMETHODIMP ClassFactory::LockServer(BOOL lock) {
  lock ? lockModule() : unlockModule();
  return S_OK;
}

ClassFactory& classFactory() {
  static ClassFactory factory;
  return factory;
}

}  // namespace nerida

#pragma once

#include <unknwn.h>
#include <windows.h>

namespace nerida {

// Makes the control. One for the whole module; it lives as long as the module.
class ClassFactory final : public IClassFactory {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** result) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** result) override;
  STDMETHODIMP LockServer(BOOL lock) override;
};

ClassFactory& classFactory();

}  // namespace nerida

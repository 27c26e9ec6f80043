#pragma once

#include <oleacc.h>
#include <windows.h>

#include <atomic>

#include "platform/win32/module.h"

namespace nerida {

// The system's interfaces have no virtual destructor; ours does, and only Release uses it.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// What every accessible object of ours answers alike: identity, reference count, and late-bound calls, which go
// through the system's own description of the interface. Starts with one reference; while it lives the module stays,
// since whoever holds a reference may call at any time.
class AccessibleBase : public IAccessible {
 public:
  AccessibleBase() = default;
  AccessibleBase(const AccessibleBase&) = delete;
  AccessibleBase& operator=(const AccessibleBase&) = delete;

  STDMETHODIMP QueryInterface(REFIID identifier, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID language, ITypeInfo** info) override;
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* identifiers) override;
  STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT* badArgument) override;

 protected:
  virtual ~AccessibleBase();

 private:
  const ModuleLock lock;
  std::atomic<ULONG> references = 1;
};

#pragma GCC diagnostic pop

}  // namespace nerida

#pragma once

#include <oaidl.h>

#include <atomic>
#include <span>
#include <string_view>

namespace nerida {

// What the tests' automation objects have in common: they go with their last reference, and do not describe themselves.
template <class... Interfaces>
class CountedObject : public Interfaces... {
 public:
  virtual ~CountedObject() = default;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }

 private:
  std::atomic<ULONG> references = 1;
};

// Members are numbered from 1, in the order of their names.
inline HRESULT findMember(std::span<const wchar_t* const> names, std::wstring_view asked, DISPID* id) {
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (asked != names[i]) continue;
    *id = static_cast<DISPID>(i) + 1;
    return S_OK;
  }
  return DISP_E_UNKNOWNNAME;
}

}  // namespace nerida

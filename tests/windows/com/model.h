#pragma once

#include <oaidl.h>
#include <windows.h>

#include <functional>
#include <map>
#include <string>

#include "platform/win32/com.h"

namespace nerida {

// A model with every member that the control reads while it is bound and shown; what it writes is kept.
class Model : public IDispatch {
 public:
  Model();
  virtual ~Model() = default;

  // Runs when a member of that name is used.
  std::function<void(const std::wstring& member)> used;
  std::map<std::wstring, Variant> values;
  ULONG references = 1;

  STDMETHODIMP QueryInterface(REFIID id, void** result) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override { return --references; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR** names, UINT count, LCID, DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT* argumentError) override;

 private:
  void set(const std::wstring& name, VARTYPE type, LONG value);

  std::map<std::wstring, DISPID> ids;
  std::map<DISPID, std::wstring> names;
};

}  // namespace nerida

#pragma once

#include <oaidl.h>
#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace nerida {

// What an automation object was asked to do, as it saw it.
struct Request {
  std::wstring member;
  WORD flags;
  std::vector<VARTYPE> types;  // of the arguments, in the caller's order
};

// An automation object whose members are functions of the test. Counts its references; not on the heap.
class RecordingObject : public IDispatch {
 public:
  struct Call {
    DISPPARAMS& parameters;
    VARIANT* result;
    EXCEPINFO* exception;
    UINT* argumentError;

    // In the caller's order.
    VARIANT& argument(UINT index) const { return parameters.rgvarg[parameters.cArgs - 1 - index]; }
  };
  using Member = std::function<HRESULT(const Call&)>;

  virtual ~RecordingObject() = default;

  void add(const std::wstring& name, Member member) { members[name] = std::move(member); }

  STDMETHODIMP QueryInterface(REFIID id, void** result) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override { return --references; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR** names, UINT count, LCID, DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT* argumentError) override;

  ULONG references = 1;
  int lookUps = 0;
  std::vector<Request> requests;

 private:
  std::map<std::wstring, Member> members;
  std::vector<std::wstring> names;
};

inline STDMETHODIMP RecordingObject::QueryInterface(REFIID id, void** result) {
  const bool known = id == IID_IUnknown || id == IID_IDispatch;
  *result = known ? this : nullptr;
  if (known) AddRef();
  return known ? S_OK : E_NOINTERFACE;
}

inline STDMETHODIMP RecordingObject::GetIDsOfNames(REFIID, OLECHAR** asked, UINT count, LCID, DISPID* ids) {
  ++lookUps;
  if (count != 1 || !members.contains(asked[0])) return DISP_E_UNKNOWNNAME;
  names.push_back(asked[0]);
  *ids = static_cast<DISPID>(names.size());  // another one at each look-up, so that a cached one would show
  return S_OK;
}

inline STDMETHODIMP RecordingObject::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                            VARIANT* result, EXCEPINFO* exception, UINT* argumentError) {
  if (id != static_cast<DISPID>(names.size())) return DISP_E_MEMBERNOTFOUND;
  const std::wstring name = names.back();
  Request request{name, flags, {}};
  for (UINT i = parameters->cArgs; i-- > 0;) request.types.push_back(parameters->rgvarg[i].vt);
  requests.push_back(request);
  return members[name]({*parameters, result, exception, argumentError});
}

}  // namespace nerida

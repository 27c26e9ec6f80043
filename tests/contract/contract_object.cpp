#include "tests/contract/contract_object.h"

#include <oaidl.h>

#include "platform/win32/automation.h"
#include "platform/win32/com.h"
#include "tests/windows/counted_object.h"

namespace nerida {
namespace {

enum Member : DISPID { name = 1, number, add, fill, increase, refuse, crash };
constexpr const wchar_t* memberNames[] = {L"Name", L"Number", L"Add", L"Fill", L"Increase", L"Refuse", L"Crash"};

HRESULT raise(EXCEPINFO* exception, WORD code, const wchar_t* text) {
  *exception = {};
  exception->wCode = code;
  exception->bstrDescription = text != nullptr ? SysAllocString(text) : nullptr;
  return DISP_E_EXCEPTION;
}

// Takes whatever form of reference it is given, as a compiled object does.
HRESULT fillVariable(const VARIANTARG& target) {
  if (target.vt != (VT_BYREF | VT_VARIANT)) return DISP_E_TYPEMISMATCH;
  VariantClear(target.pvarVal);
  target.pvarVal->vt = VT_BSTR;
  target.pvarVal->bstrVal = SysAllocString(L"filled");
  return S_OK;
}

HRESULT increaseNumber(const VARIANTARG& target) {
  if (target.vt != (VT_BYREF | VT_I4)) return DISP_E_TYPEMISMATCH;
  ++*target.plVal;
  return S_OK;
}

class ContractObject final : public CountedObject<IDispatch> {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** result) override {
    const bool known = id == IID_IUnknown || id == IID_IDispatch;
    *result = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }

  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR** asked, UINT, LCID, DISPID* ids) override {
    return findMember(memberNames, asked[0], ids);
  }

  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT* refused) override {
    VARIANTARG* arguments = parameters->rgvarg;
    *refused = 0;
    switch (id) {
      case name:
      case number: {
        VARIANT& kept = id == name ? text : value;
        return (flags & DISPATCH_PROPERTYPUT) != 0 ? VariantCopy(&kept, arguments) : VariantCopy(result, &kept);
      }
      case add:
        result->vt = VT_I4;
        result->lVal = arguments[1].iVal * 10 + arguments[0].iVal;  // the last argument comes first
        return S_OK;
      case fill:
        return fillVariable(arguments[0]);
      case increase:
        return increaseNumber(arguments[0]);
      case refuse:
        return raise(exception, 380, L"Bad value");
      case crash:
        return raise(exception, 91, nullptr);
      default:
        return DISP_E_MEMBERNOTFOUND;
    }
  }

 private:
  Variant text;
  Variant value;
};

}  // namespace

ObjectRef makeContractObject() {
  auto* object = new ContractObject;
  ObjectRef wrapped = wrapDispatch(object);
  object->Release();
  return wrapped;
}

}  // namespace nerida

#include "platform/win32/late_binding.h"

#include <dispex.h>

#include "platform/error.h"
#include "platform/win32/status.h"

namespace nerida {
namespace {

// The import library lacks this one.
constexpr IID iidDispatchEx = {0xa6ef9860, 0xc720, 0x11d0, {0x93, 0x37, 0x00, 0xa0, 0xc9, 0x0d, 0xca, 0xa9}};

ComPtr<IDispatchEx> dispatchEx(IDispatch& object) {
  ComPtr<IDispatchEx> result;
  if (FAILED(object.QueryInterface(iidDispatchEx, result.putVoid()))) return {};
  return result;
}

bool hasMember(IDispatch& object, const wchar_t* name) {
  auto* asked = const_cast<LPOLESTR>(name);
  DISPID id = DISPID_UNKNOWN;
  return SUCCEEDED(object.GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id));
}

bool isScriptFunction(const VARIANT& value) {
  return value.vt == VT_DISPATCH && value.pdispVal != nullptr && hasMember(*value.pdispVal, L"call");
}

// Script engines fail, and tell their host so, when a data property is asked for as "property or function". So it is
// read as a property, which gives a function as an object without running it.
HRESULT getFromScript(IDispatch& object, DISPID member, Variant& result, EXCEPINFO& exception) {
  const HRESULT status = invoke(object, member, DISPATCH_PROPERTYGET, {}, &result, exception).status;
  const bool needsCall = SUCCEEDED(status) ? isScriptFunction(result) : status == DISP_E_MEMBERNOTFOUND;
  if (!needsCall) return status;
  VariantClear(&result);
  return invoke(object, member, DISPATCH_METHOD, {}, &result, exception).status;
}

}  // namespace

bool isScriptObject(IDispatch& object) { return static_cast<bool>(dispatchEx(object)); }

DISPID findMember(IDispatch& object, const std::string& name) {
  DISPID member = DISPID_UNKNOWN;
  const Bstr text{std::string_view(name)};
  OLECHAR* names[] = {text.get()};
  HRESULT status = object.GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &member);
  if (status == E_NOTIMPL) {
    const auto script = dispatchEx(object);
    status = script ? script->GetDispID(text.get(), fdexNameCaseInsensitive, &member) : DISP_E_UNKNOWNNAME;
  }
  if (FAILED(status)) throw errorFromStatus(status);
  return member;
}

Outcome invoke(IDispatch& object, DISPID member, WORD flags, std::span<VARIANT> arguments, VARIANT* result,
               EXCEPINFO& exception) {
  DISPID put = DISPID_PROPERTYPUT;
  const bool assigns = (flags & DISPATCH_PROPERTYPUT) != 0;
  DISPPARAMS parameters = {arguments.data(), assigns ? &put : nullptr, static_cast<UINT>(arguments.size()),
                           assigns ? 1U : 0U};
  constexpr UINT none = ~0U;
  UINT refused = none;
  const HRESULT status =
      object.Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result, &exception, &refused);
  return {status, refused == none ? -1 : static_cast<int>(refused)};
}

void getMember(IDispatch& object, const std::string& name, Variant& result) {
  const DISPID member = findMember(object, name);
  EXCEPINFO exception = {};
  const HRESULT status =
      isScriptObject(object)
          ? getFromScript(object, member, result, exception)
          : invoke(object, member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {}, &result, exception).status;
  if (FAILED(status)) throw errorFromInvoke(status, exception);
}

}  // namespace nerida

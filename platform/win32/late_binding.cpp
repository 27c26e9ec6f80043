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

// A script engine answers this for a data property that is asked for as "property or function".
bool isDataPropertyRefusal(HRESULT status, IDispatch& object, const Member& member) {
  return status == E_FAIL && !member.scriptClass && isScriptObject(object);
}

void discard(EXCEPINFO& exception) {
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrHelpFile);
  exception = {};
}

}  // namespace

bool isScriptObject(IDispatch& object) { return static_cast<bool>(dispatchEx(object)); }

Member findMember(IDispatch& object, const std::string& name) {
  Member result;
  const Bstr text{std::string_view(name)};
  OLECHAR* names[] = {text.get()};
  HRESULT status = object.GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &result.id);
  if (status == E_NOTIMPL) {
    if (const auto script = dispatchEx(object)) {
      result.scriptClass = true;
      status = script->GetDispID(text.get(), fdexNameCaseInsensitive, &result.id);
    }
  }
  if (FAILED(status)) throw errorFromStatus(status == E_NOTIMPL ? DISP_E_UNKNOWNNAME : status);
  return result;
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
  const Member member = findMember(object, name);
  EXCEPINFO exception = {};
  HRESULT status = invoke(object, member.id, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {}, &result, exception).status;
  if (isDataPropertyRefusal(status, object, member)) {
    discard(exception);
    status = invoke(object, member.id, DISPATCH_PROPERTYGET, {}, &result, exception).status;
  }
  if (FAILED(status)) throw errorFromInvoke(status, exception);
}

}  // namespace nerida

#include "host/win32/automation.h"

namespace nerida::host {

bool sameName(std::wstring_view known, const wchar_t* asked) {
  return CompareStringOrdinal(known.data(), static_cast<int>(known.size()), asked, -1, TRUE) == CSTR_EQUAL;
}

std::optional<CallKind> kindOf(WORD flags, bool canGet, bool canLet, bool canCall) {
  if ((flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
    return canLet ? std::optional(CallKind::let) : std::nullopt;
  }
  if ((flags & DISPATCH_METHOD) != 0 && canCall) return CallKind::call;
  if ((flags & DISPATCH_PROPERTYGET) != 0 && canGet) return CallKind::get;
  return std::nullopt;
}

bool givenByPosition(const DISPPARAMS& parameters) {
  if (parameters.cNamedArgs == 0) return true;
  return parameters.cNamedArgs == 1 && parameters.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
}

HRESULT describe(const MemberError& error, const Outcome& outcome, CallRecord& record) {
  record.failure = std::to_string(error.number) + ' ' + error.description;
  if (outcome.exception == nullptr) return DISP_E_EXCEPTION;
  *outcome.exception = {};
  // As a status: some script hosts overlook the field for plain numbers and take the failure for a success.
  outcome.exception->scode = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, error.number);
  outcome.exception->bstrSource = SysAllocString(outcome.source);
  outcome.exception->bstrDescription = SysAllocString(wide(error.description).c_str());
  return DISP_E_EXCEPTION;
}

HRESULT describe(const CallRefused& refused, const Outcome& outcome, CallRecord& record) {
  record.failure = "refused, argument " + std::to_string(record.arguments.count() - refused.argument);
  if (outcome.badArgument != nullptr) *outcome.badArgument = refused.argument;
  return refused.status;
}

}  // namespace nerida::host

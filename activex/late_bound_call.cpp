#include "activex/late_bound_call.h"

#include "activex/type_library.h"

namespace nerida {
namespace {

enum Dispatch : DISPID {
  isToolbarVisible = 1,
  isCatalogVisible,
  toolbarDispose,
  toolbarShowAt,
  toolbarHide,
  toolbarInitModel,
  showAboutBox,
  showHelp,
  showCatalog,
};

UINT argumentCount(DISPID member) { return member == toolbarShowAt || member == toolbarInitModel ? 2 : 0; }

bool isOmitted(const VARIANT& argument) { return argument.vt == VT_ERROR && argument.scode == DISP_E_PARAMNOTFOUND; }

// Stores a number into a variable of the caller's, as the type that the variable has.
void assign(VARIANT& reference, SHORT number) {
  Variant value;
  value.vt = VT_I2;
  value.iVal = number;
  if (reference.vt == (VT_BYREF | VT_VARIANT)) {
    VariantCopy(reference.pvarVal, &value);
    return;
  }
  const auto type = static_cast<VARTYPE>(reference.vt & ~VT_BYREF);
  if (FAILED(VariantChangeType(&value, &value, 0, type))) return;
  switch (type) {
    case VT_I2:
      *reference.piVal = value.iVal;
      break;
    case VT_I4:
    case VT_INT:
      *reference.plVal = value.lVal;
      break;
    case VT_R4:
      *reference.pfltVal = value.fltVal;
      break;
    case VT_R8:
      *reference.pdblVal = value.dblVal;
      break;
    case VT_BSTR:
      std::swap(*reference.pbstrVal, value.bstrVal);
      break;
    default:
      break;
  }
}

}  // namespace

HRESULT memberIds(OLECHAR** names, UINT count, DISPID* ids) {
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  const auto info = typeInfo(IID__NeridaWindow);
  return info ? info->GetIDsOfNames(names, count, ids) : TYPE_E_CANTLOADLIBRARY;
}

HRESULT LateBoundCall::run(DISPID member, WORD flags) {
  if (member < isToolbarVisible || member > showCatalog || (flags & DISPATCH_METHOD) == 0) {
    return DISP_E_MEMBERNOTFOUND;
  }
  if (const HRESULT status = checkNames(); FAILED(status)) return status;
  if (parameters.cArgs > argumentCount(member)) return DISP_E_BADPARAMCOUNT;
  if (parameters.cArgs < argumentCount(member)) return DISP_E_PARAMNOTOPTIONAL;
  return dispatch(member);
}

// Arguments are named by their positions.
HRESULT LateBoundCall::checkNames() const {
  if (parameters.cNamedArgs > parameters.cArgs) return E_INVALIDARG;
  for (UINT i = 0; i < parameters.cNamedArgs; ++i) {
    const DISPID name = parameters.rgdispidNamedArgs[i];
    if (name >= 0 && name < static_cast<DISPID>(parameters.cArgs)) continue;
    if (argumentError != nullptr) *argumentError = i;
    return DISP_E_PARAMNOTFOUND;
  }
  return S_OK;
}

template <typename Result, typename Method>
HRESULT LateBoundCall::call(Method method) {
  Result value{};
  const HRESULT status = (control.*method)(&value);
  if (SUCCEEDED(status)) store(value);
  return status;
}

HRESULT LateBoundCall::dispatch(DISPID member) {
  switch (member) {
    case isToolbarVisible:
      return call<VARIANT_BOOL>(&_NeridaWindow::IsToolbarVisible);
    case isCatalogVisible:
      return call<VARIANT_BOOL>(&_NeridaWindow::IsCatalogVisible);
    case toolbarDispose:
      return call<LONG>(&_NeridaWindow::ToolbarDispose);
    case toolbarShowAt:
      return toolbarShow();
    case toolbarHide:
      return call<LONG>(&_NeridaWindow::ToolbarHide);
    case toolbarInitModel:
      return toolbarInit();
    case showAboutBox:
      return call<VARIANT>(&_NeridaWindow::ShowAboutBox);
    case showHelp:
      return call<VARIANT>(&_NeridaWindow::ShowHelp);
    default:
      return call<LONG>(&_NeridaWindow::ShowCatalog);
  }
}

HRESULT LateBoundCall::toolbarShow() {
  Variant x;
  Variant y;
  HRESULT status = argument(0, VT_I2, x);
  if (SUCCEEDED(status)) status = argument(1, VT_I2, y);
  if (FAILED(status)) return status;
  const SHORT oldX = x.iVal;
  const SHORT oldY = y.iVal;
  LONG window = 0;
  status = control.ToolbarShow(&x.iVal, &y.iVal, &window);
  writeBack(0, oldX, x.iVal);
  writeBack(1, oldY, y.iVal);
  if (SUCCEEDED(status)) store(window);
  return status;
}

HRESULT LateBoundCall::toolbarInit() {
  Variant model;
  Variant hostWindow;
  HRESULT status = argument(0, VT_DISPATCH, model);
  if (SUCCEEDED(status)) status = argument(1, VT_I4, hostWindow);
  if (FAILED(status)) return status;
  LONG number = 0;
  status = control.ToolbarInit(&model.pdispVal, &hostWindow.lVal, &number);
  if (SUCCEEDED(status)) store(number);
  return status;
}

VARIANT* LateBoundCall::sent(UINT position) const {
  for (UINT i = 0; i < parameters.cNamedArgs; ++i) {
    if (parameters.rgdispidNamedArgs[i] == static_cast<DISPID>(position)) return &parameters.rgvarg[i];
  }
  const UINT unnamed = parameters.cArgs - parameters.cNamedArgs;
  return position < unnamed ? &parameters.rgvarg[parameters.cArgs - 1 - position] : nullptr;
}

HRESULT LateBoundCall::argument(UINT position, VARTYPE type, VARIANT& converted) {
  VARIANT* variant = sent(position);
  if (variant == nullptr || isOmitted(*variant)) return DISP_E_PARAMNOTOPTIONAL;
  const HRESULT status = VariantChangeType(&converted, variant, 0, type);
  if (FAILED(status) && argumentError != nullptr) *argumentError = static_cast<UINT>(variant - parameters.rgvarg);
  return status;
}

// What the method left alone stays as the caller sent it.
void LateBoundCall::writeBack(UINT position, SHORT before, SHORT after) {
  VARIANT* variant = sent(position);
  if (before != after && (variant->vt & VT_BYREF) != 0) assign(*variant, after);
}

void LateBoundCall::store(LONG value) {
  if (result == nullptr) return;
  result->vt = VT_I4;
  result->lVal = value;
}

void LateBoundCall::store(VARIANT_BOOL value) {
  if (result == nullptr) return;
  result->vt = VT_BOOL;
  result->boolVal = value;
}

void LateBoundCall::store(VARIANT value) {
  if (result != nullptr) *result = value;
}

}  // namespace nerida

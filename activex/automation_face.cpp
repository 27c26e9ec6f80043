#include "activex/automation_face.h"

#include "activex/border.h"
#include "activex/late_bound_call.h"
#include "activex/type_library.h"
#include "platform/win32/automation.h"

namespace nerida {
namespace {

VARIANT_BOOL toVariantBool(bool value) { return value ? VARIANT_TRUE : VARIANT_FALSE; }

// The significant part of a window handle.
LONG toLong(WindowHandle window) { return static_cast<LONG>(window); }

// Runs a method whose result the caller may not have made room for, as the body of a COM method.
template <typename Result, typename Body>
HRESULT answer(IUnknown& self, Result* result, Body body) noexcept {
  if (result == nullptr) return E_POINTER;
  *result = Result{};
  return border([&] {
    const SelfReference reference(self);
    *result = body();
    return S_OK;
  });
}

VARIANT emptyVariant() {
  VARIANT result;
  VariantInit(&result);
  return result;
}

}  // namespace

STDMETHODIMP AutomationFace::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

STDMETHODIMP AutomationFace::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  return border([&] {
    *info = typeInfo(IID__NeridaWindow).release();
    return *info != nullptr ? S_OK : TYPE_E_CANTLOADLIBRARY;
  });
}

STDMETHODIMP AutomationFace::GetIDsOfNames(REFIID reserved, OLECHAR** names, UINT count, LCID, DISPID* ids) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  return border([&] { return memberIds(names, count, ids); });
}

STDMETHODIMP AutomationFace::Invoke(DISPID member, REFIID reserved, LCID, WORD flags, DISPPARAMS* parameters,
                                    VARIANT* result, EXCEPINFO*, UINT* argumentError) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (parameters == nullptr) return E_INVALIDARG;
  if (result != nullptr) VariantInit(result);
  return border([&] {
    const SelfReference reference(*this);
    return LateBoundCall(*this, *parameters, result, argumentError).run(member, flags);
  });
}

STDMETHODIMP AutomationFace::IsToolbarVisible(VARIANT_BOOL* result) {
  return answer(*this, result, [&] { return toVariantBool(control.IsToolbarVisible()); });
}

STDMETHODIMP AutomationFace::IsCatalogVisible(VARIANT_BOOL* result) {
  return answer(*this, result, [&] { return toVariantBool(control.IsCatalogVisible()); });
}

STDMETHODIMP AutomationFace::ToolbarDispose(LONG* result) {
  return answer(*this, result, [&] { return control.ToolbarDispose(); });
}

STDMETHODIMP AutomationFace::ToolbarShow(SHORT* x, SHORT* y, LONG* result) {
  if (x == nullptr || y == nullptr) return E_POINTER;
  return answer(*this, result, [&] { return toLong(control.ToolbarShow(*x, *y)); });
}

STDMETHODIMP AutomationFace::ToolbarHide(LONG* result) {
  return answer(*this, result, [&] { return control.ToolbarHide(); });
}

STDMETHODIMP AutomationFace::ToolbarInit(IDispatch** model, LONG* hostWindow, LONG* result) {
  if (model == nullptr || hostWindow == nullptr) return E_POINTER;
  return answer(*this, result, [&] { return control.ToolbarInit(wrapDispatch(*model), *hostWindow); });
}

STDMETHODIMP AutomationFace::ShowAboutBox(VARIANT* result) {
  return answer(*this, result, [&] {
    control.ShowAboutBox();
    return emptyVariant();
  });
}

STDMETHODIMP AutomationFace::ShowHelp(VARIANT* result) {
  return answer(*this, result, [&] {
    control.ShowHelp();
    return emptyVariant();
  });
}

STDMETHODIMP AutomationFace::ShowCatalog(LONG* result) {
  return answer(*this, result, [&] { return toLong(control.ShowCatalog()); });
}

}  // namespace nerida

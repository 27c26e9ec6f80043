#include "tests/windows/com/model.h"

namespace nerida {

Model::Model() {
  for (const wchar_t* name : {L"InterfaceFlags", L"SurfaceColor", L"LineColor", L"BackgroundColor"})
    set(name, VT_I4, 0);
  for (const wchar_t* name : {L"AnimationFrameCount", L"AnimationCurrentFrame"}) set(name, VT_I2, 0);
  for (const wchar_t* name : {L"IsToolbarShowing", L"IsCatalogShowing", L"AnimationState", L"DoneShowingModelCatalog",
                              L"IsSurfaceColorDefault", L"IsLineColorDefault", L"IsBackgroundDefault"}) {
    set(name, VT_BOOL, VARIANT_FALSE);
  }
  for (const wchar_t* name : {L"ModelName", L"LookStyleName", L"LookStyle"}) {
    values[name].bstrVal = SysAllocString(L"");
    values[name].vt = VT_BSTR;
  }
  for (const wchar_t* name : {L"GetLookStyleList", L"RefreshDisplay", L"StopTimer", L"StartTimer"}) {
    values[name];
  }
  DISPID id = 0;
  for (const auto& [name, value] : values) {
    ids[name] = ++id;
    names[id] = name;
  }
}

void Model::set(const std::wstring& name, VARTYPE type, LONG value) {
  values[name].vt = type;
  values[name].lVal = value;
}

STDMETHODIMP Model::QueryInterface(REFIID id, void** result) {
  const bool known = id == IID_IUnknown || id == IID_IDispatch;
  *result = known ? this : nullptr;
  if (known) AddRef();
  return known ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP Model::GetIDsOfNames(REFIID, OLECHAR** asked, UINT, LCID, DISPID* result) {
  const auto found = ids.find(asked[0]);
  if (found == ids.end()) return DISP_E_UNKNOWNNAME;
  *result = found->second;
  return S_OK;
}

STDMETHODIMP Model::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                           UINT*) {
  const std::wstring name = names.at(id);
  if (used) used(name);
  if ((flags & DISPATCH_PROPERTYPUT) != 0) return VariantCopy(&values[name], &parameters->rgvarg[0]);
  if (name == L"GetLookStyleList") {
    parameters->rgvarg[2].pvarVal->vt = VT_ARRAY | VT_BSTR;
    parameters->rgvarg[2].pvarVal->parray = SafeArrayCreateVector(VT_BSTR, 0, 1);
    return S_OK;
  }
  return result != nullptr ? VariantCopy(result, &values[name]) : S_OK;
}

}  // namespace nerida

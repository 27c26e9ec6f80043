#include "host/app/model_dispatch.h"

namespace nerida::host {
namespace {

MemberTable<ModelObject> members() { return MemberTable<ModelObject>(modelMembers()); }

}  // namespace

HRESULT ModelDispatch::QueryInterface(REFIID wanted, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (wanted != IID_IUnknown && wanted != IID_IDispatch) return E_NOINTERFACE;
  *result = static_cast<IDispatch*>(this);
  AddRef();
  return S_OK;
}

ULONG ModelDispatch::Release() {
  const ULONG left = --references;
  if (left == 0) delete this;
  return left;
}

HRESULT ModelDispatch::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT ModelDispatch::GetTypeInfo(UINT, LCID, ITypeInfo** result) {
  if (result != nullptr) *result = nullptr;
  return DISP_E_BADINDEX;
}

HRESULT ModelDispatch::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  return findNames(reserved, names, count, ids, [](const wchar_t* name) { return members().idOf(name); });
}

// The caller may let go of the object from inside a member.
HRESULT ModelDispatch::Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                              EXCEPINFO* exception, UINT* badArgument) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (model == nullptr) return RPC_E_DISCONNECTED;
  AddRef();
  const Outcome outcome{L"Zephra Model", result, exception, badArgument};
  const HRESULT status = members().invoke(*model, id, flags, parameters, outcome,
                                          [this](const CallRecord& record) { listener->called(record); });
  Release();
  return status;
}

}  // namespace nerida::host

#include "platform/win32/accessible.h"

#include <string>

namespace nerida {
namespace {

// Never looked for in the current directory.
std::wstring systemFile(const wchar_t* name) {
  std::wstring folder(MAX_PATH, L'\0');
  folder.resize(GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size())));
  return folder + L'\\' + name;
}

// The caller releases what it is given.
HRESULT describeAccessible(ITypeInfo** info) {
  static constexpr GUID library = {0x1ea4dbf0, 0x3c3b, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};
  ITypeLib* types = nullptr;
  HRESULT status = LoadRegTypeLib(library, 1, 1, 0, &types);
  if (FAILED(status)) status = LoadTypeLib(systemFile(L"oleacc.dll").c_str(), &types);
  if (FAILED(status)) return E_NOTIMPL;
  status = types->GetTypeInfoOfGuid(IID_IAccessible, info);
  types->Release();
  return status;
}

}  // namespace

AccessibleBase::~AccessibleBase() = default;

STDMETHODIMP AccessibleBase::QueryInterface(REFIID identifier, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (identifier != IID_IUnknown && identifier != IID_IDispatch && identifier != IID_IAccessible) {
    return E_NOINTERFACE;
  }
  *object = static_cast<IAccessible*>(this);
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) AccessibleBase::AddRef() { return ++references; }

STDMETHODIMP_(ULONG) AccessibleBase::Release() {
  const ULONG left = --references;
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP AccessibleBase::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

STDMETHODIMP AccessibleBase::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  return index == 0 ? describeAccessible(info) : DISP_E_BADINDEX;
}

STDMETHODIMP AccessibleBase::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* identifiers) {
  ITypeInfo* info = nullptr;
  const HRESULT found = describeAccessible(&info);
  if (FAILED(found)) return found;
  const HRESULT status = info->GetIDsOfNames(names, count, identifiers);
  info->Release();
  return status;
}

STDMETHODIMP AccessibleBase::Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                    EXCEPINFO* exception, UINT* badArgument) {
  ITypeInfo* info = nullptr;
  const HRESULT found = describeAccessible(&info);
  if (FAILED(found)) return found;
  const HRESULT status =
      info->Invoke(static_cast<IAccessible*>(this), member, flags, parameters, result, exception, badArgument);
  info->Release();
  return status;
}

}  // namespace nerida

#include "activex/ole_face.h"

#include <ActiveNeridaToolbar_h.h>

#include <cwchar>

#include "activex/border.h"
#include "activex/type_library.h"

namespace nerida {
namespace {

// Hands a shared reference out through an argument.
template <typename Interface>
HRESULT handOut(const ComPtr<Interface>& reference, Interface** result) {
  if (result == nullptr) return E_POINTER;
  *result = ComPtr<Interface>(reference).release();
  return S_OK;
}

HRESULT classId(CLSID* id) {
  if (id == nullptr) return E_POINTER;
  *id = CLSID_NeridaWindow;
  return S_OK;
}

}  // namespace

STDMETHODIMP OleFace::SetClientSite(IOleClientSite* site) {
  clientSite = ComPtr<IOleClientSite>(site);
  return S_OK;
}

STDMETHODIMP OleFace::GetClientSite(IOleClientSite** site) { return handOut(clientSite, site); }

// A listener may release the control, and the holder with it.
STDMETHODIMP OleFace::Close(DWORD) {
  if (!holder) return S_OK;
  const SelfReference reference(static_cast<IOleObject&>(*this));
  holder->SendOnClose();
  return S_OK;
}

STDMETHODIMP OleFace::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
  if (moniker == nullptr) return E_POINTER;
  *moniker = nullptr;
  return E_NOTIMPL;
}

STDMETHODIMP OleFace::GetClipboardData(DWORD, IDataObject** data) {
  if (data == nullptr) return E_POINTER;
  *data = nullptr;
  return E_NOTIMPL;
}

// There is no window to bring up; the standard verbs succeed so that containers carry on.
STDMETHODIMP OleFace::DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) {
  return verb <= OLEIVERB_PRIMARY && verb >= OLEIVERB_INPLACEACTIVATE ? S_OK : OLEOBJ_S_INVALIDVERB;
}

STDMETHODIMP OleFace::EnumVerbs(IEnumOLEVERB** verbs) {
  if (verbs == nullptr) return E_POINTER;
  *verbs = nullptr;
  return OLEOBJ_E_NOVERBS;
}

STDMETHODIMP OleFace::GetUserClassID(CLSID* id) { return classId(id); }

STDMETHODIMP OleFace::GetUserType(DWORD, LPOLESTR* name) {
  if (name == nullptr) return E_POINTER;
  const std::size_t size = (std::wcslen(controlTitle) + 1) * sizeof(wchar_t);
  *name = static_cast<LPOLESTR>(CoTaskMemAlloc(size));
  if (*name == nullptr) return E_OUTOFMEMORY;
  std::wmemcpy(*name, controlTitle, size / sizeof(wchar_t));
  return S_OK;
}

STDMETHODIMP OleFace::SetExtent(DWORD aspect, SIZEL* size) {
  if (size == nullptr) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  extent = *size;
  return S_OK;
}

STDMETHODIMP OleFace::GetExtent(DWORD aspect, SIZEL* size) {
  if (size == nullptr) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  *size = extent;
  return S_OK;
}

HRESULT OleFace::provideHolder() { return holder ? S_OK : CreateOleAdviseHolder(holder.put()); }

STDMETHODIMP OleFace::Advise(IAdviseSink* sink, DWORD* connection) {
  const HRESULT status = provideHolder();
  return FAILED(status) ? status : holder->Advise(sink, connection);
}

STDMETHODIMP OleFace::Unadvise(DWORD connection) { return holder ? holder->Unadvise(connection) : OLE_E_NOCONNECTION; }

STDMETHODIMP OleFace::EnumAdvise(IEnumSTATDATA** sinks) {
  if (sinks == nullptr) return E_POINTER;
  *sinks = nullptr;
  return holder ? holder->EnumAdvise(sinks) : S_OK;
}

STDMETHODIMP OleFace::GetMiscStatus(DWORD aspect, DWORD* status) {
  if (status == nullptr) return E_POINTER;
  *status = aspect == DVASPECT_CONTENT ? miscStatus : 0;
  return S_OK;
}

STDMETHODIMP OleFace::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = nullptr;
  return E_FAIL;
}

STDMETHODIMP OleFace::GetClassID(CLSID* id) { return classId(id); }

STDMETHODIMP OleFace::GetSizeMax(ULARGE_INTEGER* size) {
  if (size == nullptr) return E_POINTER;
  size->QuadPart = 0;
  return S_OK;
}

STDMETHODIMP OleFace::GetClassInfo(ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  return border([&] {
    *info = typeInfo(CLSID_NeridaWindow).release();
    return *info != nullptr ? S_OK : TYPE_E_CANTLOADLIBRARY;
  });
}

// The control raises no events.
STDMETHODIMP OleFace::GetGUID(DWORD, GUID* id) {
  if (id == nullptr) return E_POINTER;
  *id = GUID_NULL;
  return E_NOTIMPL;
}

STDMETHODIMP OleFace::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC context, LPCRECTL bounds, LPCRECTL,
                           WINBOOL(STDMETHODCALLTYPE*)(ULONG_PTR), ULONG_PTR) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (bounds == nullptr) return E_POINTER;
  RECT frame = {bounds->left, bounds->top, bounds->right, bounds->bottom};
  const int state = SaveDC(context);
  FillRect(context, &frame, GetSysColorBrush(COLOR_BTNFACE));
  DrawEdge(context, &frame, EDGE_RAISED, BF_RECT | BF_ADJUST);
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, GetSysColor(COLOR_BTNTEXT));
  DrawTextW(context, L"NeridaWindow", -1, &frame, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
  RestoreDC(context, state);
  return S_OK;
}

STDMETHODIMP OleFace::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
  viewAspects = aspects;
  viewFlags = flags;
  viewSink = ComPtr<IAdviseSink>(sink);
  return S_OK;
}

STDMETHODIMP OleFace::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
  if (aspects != nullptr) *aspects = viewAspects;
  if (flags != nullptr) *flags = viewFlags;
  return sink != nullptr ? handOut(viewSink, sink) : S_OK;
}

STDMETHODIMP OleFace::GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, LPSIZEL size) { return GetExtent(aspect, size); }

}  // namespace nerida

#include "host/preview/preview_control.h"

#include "host/preview/preview_members.h"

namespace nerida::host {
namespace {

constexpr DWORD miscStatus = OLEMISC_SETCLIENTSITEFIRST | OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_INSIDEOUT |
                             OLEMISC_CANTLINKINSIDE | OLEMISC_RECOMPOSEONRESIZE;

MemberTable<Preview> members() { return MemberTable<Preview>(previewMembers()); }

// A reference that an object holds on itself while one of its methods runs: the caller may release the last one inside.
class Kept {
 public:
  explicit Kept(IDispatch& object) : object(object) { object.AddRef(); }
  ~Kept() { object.Release(); }
  Kept(const Kept&) = delete;
  Kept& operator=(const Kept&) = delete;

 private:
  IDispatch& object;
};

template <typename Interface>
void share(ComRef<Interface>& reference, Interface* object) {
  if (object != nullptr) object->AddRef();
  *reference.out() = object;
}

}  // namespace

const CLSID previewClass = {0x79c31969, 0x2876, 0x464f, {0x93, 0x8f, 0x5e, 0x24, 0xf3, 0x0f, 0xdf, 0x26}};

STDMETHODIMP PreviewControl::QueryInterface(REFIID id, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (id == IID_IUnknown || id == IID_IDispatch) *result = static_cast<IDispatch*>(this);
  if (id == IID_IOleObject) *result = static_cast<IOleObject*>(this);
  if (id == IID_IOleWindow || id == IID_IOleInPlaceObject) *result = static_cast<IOleInPlaceObject*>(this);
  if (id == IID_IOleInPlaceActiveObject) *result = static_cast<IOleInPlaceActiveObject*>(this);
  if (id == IID_IOleControl) *result = static_cast<IOleControl*>(this);
  if (id == IID_IPersist || id == IID_IPersistStreamInit) *result = static_cast<IPersistStreamInit*>(this);
  if (id == IID_IViewObject || id == IID_IViewObject2) *result = static_cast<IViewObject2*>(this);
  if (*result == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) PreviewControl::Release() {
  const ULONG left = --references;
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP PreviewControl::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

STDMETHODIMP PreviewControl::GetTypeInfo(UINT, LCID, ITypeInfo** result) {
  if (result != nullptr) *result = nullptr;
  return DISP_E_BADINDEX;
}

STDMETHODIMP PreviewControl::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  return findNames(reserved, names, count, ids, [](const wchar_t* name) { return members().idOf(name); });
}

STDMETHODIMP PreviewControl::Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS* parameters,
                                    VARIANT* result, EXCEPINFO* exception, UINT* badArgument) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  const Kept kept(*this);
  const Outcome outcome{L"Zephra Preview", result, exception, badArgument};
  return members().invoke(preview, id, flags, parameters, outcome, [](const CallRecord&) {});
}

STDMETHODIMP PreviewControl::SetClientSite(IOleClientSite* newSite) {
  if (newSite == nullptr) InPlaceDeactivate();
  share(site, newSite);
  return S_OK;
}

STDMETHODIMP PreviewControl::GetClientSite(IOleClientSite** result) {
  if (result == nullptr) return E_POINTER;
  *result = site.get();
  if (site) site->AddRef();
  return S_OK;
}

// A listener may release the control.
STDMETHODIMP PreviewControl::Close(DWORD) {
  const Kept kept(*this);
  InPlaceDeactivate();
  if (closeSinks) closeSinks->SendOnClose();
  return S_OK;
}

STDMETHODIMP PreviewControl::DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) {
  switch (verb) {
    case OLEIVERB_PRIMARY:
    case OLEIVERB_SHOW:
    case OLEIVERB_UIACTIVATE:
    case OLEIVERB_INPLACEACTIVATE:
      return guarded([&] {
        const HRESULT status = activate();
        const bool wantsFocus = verb == OLEIVERB_PRIMARY || verb == OLEIVERB_UIACTIVATE;
        if (SUCCEEDED(status) && wantsFocus) SetFocus(window->handle());
        return status;
      });
    case OLEIVERB_HIDE:
      if (window) ShowWindow(window->handle(), SW_HIDE);
      return S_OK;
    default:
      return verb < 0 ? E_NOTIMPL : OLEOBJ_S_INVALIDVERB;
  }
}

HRESULT PreviewControl::activate() {
  if (window) {
    ShowWindow(window->handle(), SW_SHOW);
    return S_OK;
  }
  if (!site) return E_UNEXPECTED;
  HRESULT status = site->QueryInterface(IID_IOleInPlaceSite, placeSite.out());
  if (FAILED(status)) return status;
  HWND parent = nullptr;
  RECT place = {};
  RECT clip = {};
  OLEINPLACEFRAMEINFO info = {};
  info.cb = sizeof info;
  ComRef<IOleInPlaceFrame> frame;
  ComRef<IOleInPlaceUIWindow> document;
  status = placeSite->CanInPlaceActivate();
  if (status == S_OK) status = placeSite->OnInPlaceActivate();
  if (SUCCEEDED(status)) status = placeSite->GetWindow(&parent);
  if (SUCCEEDED(status)) {
    status = placeSite->GetWindowContext(reinterpret_cast<IOleInPlaceFrame**>(frame.out()),
                                         reinterpret_cast<IOleInPlaceUIWindow**>(document.out()), &place, &clip, &info);
  }
  if (status != S_OK) {
    placeSite.reset();
    return E_FAIL;
  }
  window = std::make_unique<PreviewWindow>(preview, parent, place);
  site->ShowObject();
  return window->handle() != nullptr ? S_OK : E_FAIL;
}

STDMETHODIMP PreviewControl::InPlaceDeactivate() {
  if (!window) return S_OK;
  const Kept kept(*this);
  window.reset();
  const ComRef<IOleInPlaceSite> left = std::move(placeSite);
  left->OnInPlaceDeactivate();
  return S_OK;
}

STDMETHODIMP PreviewControl::UIDeactivate() { return S_OK; }

STDMETHODIMP PreviewControl::SetObjectRects(LPCRECT place, LPCRECT) {
  if (place == nullptr) return E_POINTER;
  if (window) MoveWindow(window->handle(), place->left, place->top, widthOf(*place), heightOf(*place), TRUE);
  return S_OK;
}

STDMETHODIMP PreviewControl::GetWindow(HWND* result) {
  if (result == nullptr) return E_POINTER;
  *result = window ? window->handle() : nullptr;
  return window ? S_OK : E_FAIL;
}

STDMETHODIMP PreviewControl::GetUserClassID(CLSID* id) {
  if (id == nullptr) return E_POINTER;
  *id = previewClass;
  return S_OK;
}

STDMETHODIMP PreviewControl::SetExtent(DWORD aspect, SIZEL* size) {
  if (size == nullptr) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  extent = *size;
  return S_OK;
}

STDMETHODIMP PreviewControl::GetExtent(DWORD aspect, SIZEL* size) {
  if (size == nullptr) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  *size = extent;
  return S_OK;
}

STDMETHODIMP PreviewControl::Advise(IAdviseSink* sink, DWORD* connection) {
  if (!closeSinks) {
    const HRESULT status = CreateOleAdviseHolder(reinterpret_cast<IOleAdviseHolder**>(closeSinks.out()));
    if (FAILED(status)) return status;
  }
  return closeSinks->Advise(sink, connection);
}

STDMETHODIMP PreviewControl::Unadvise(DWORD connection) {
  return closeSinks ? closeSinks->Unadvise(connection) : OLE_E_NOCONNECTION;
}

STDMETHODIMP PreviewControl::GetMiscStatus(DWORD aspect, DWORD* status) {
  if (status == nullptr) return E_POINTER;
  *status = aspect == DVASPECT_CONTENT ? miscStatus : 0;
  return S_OK;
}

STDMETHODIMP PreviewControl::GetSizeMax(ULARGE_INTEGER* size) {
  if (size == nullptr) return E_POINTER;
  size->QuadPart = 0;
  return S_OK;
}

STDMETHODIMP PreviewControl::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC context, LPCRECTL bounds,
                                  LPCRECTL, WINBOOL(STDMETHODCALLTYPE*)(ULONG_PTR), ULONG_PTR) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (bounds == nullptr) return E_POINTER;
  return guarded([&] {
    const RECT area = {bounds->left, bounds->top, bounds->right, bounds->bottom};
    if (IsRectEmpty(&area)) return S_OK;
    Picture picture(widthOf(area), heightOf(area));
    preview.scene.render(picture);
    blit(context, area, picture);
    return S_OK;
  });
}

STDMETHODIMP PreviewControl::SetAdvise(DWORD aspects, DWORD, IAdviseSink* sink) {
  viewAspects = aspects;
  share(viewSink, sink);
  return S_OK;
}

STDMETHODIMP PreviewControl::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
  if (aspects != nullptr) *aspects = viewAspects;
  if (flags != nullptr) *flags = 0;
  if (sink == nullptr) return S_OK;
  *sink = viewSink.get();
  if (viewSink) viewSink->AddRef();
  return S_OK;
}

void PreviewControl::previewChanged() {
  if (window) window->previewChanged();
  if (viewSink) viewSink->OnViewChange(viewAspects, -1);
}

}  // namespace nerida::host

#include "platform/win32/control_site.h"

#include <ocidl.h>

#include "platform/error.h"
#include "platform/win32/module.h"

namespace nerida {
namespace {

constexpr int himetricPerInch = 2540;

SIZEL himetricOf(const RECT& area) {
  const HDC screen = GetDC(nullptr);
  const SIZEL size = {MulDiv(area.right - area.left, himetricPerInch, GetDeviceCaps(screen, LOGPIXELSX)),
                      MulDiv(area.bottom - area.top, himetricPerInch, GetDeviceCaps(screen, LOGPIXELSY))};
  ReleaseDC(nullptr, screen);
  return size;
}

void require(HRESULT status) {
  if (FAILED(status)) throw Error(error::cannotCreateObject);
}

}  // namespace

// The system's interfaces have no virtual destructor; only Release destroys the object.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// What the control sees of us: a place to be active in, without menus and tools to share. The control may hold on to
// it longer than we live; then there is no window any more.
class HostedControl::Site final : public IOleClientSite, public IOleInPlaceSite, public IOleInPlaceFrame {
 public:
  Site(HWND window, const RECT& place) : parent(window), area(place) {}

  void leave() { parent = nullptr; }
  void moveTo(const RECT& place) { area = place; }

  STDMETHODIMP QueryInterface(REFIID id, void** result) override {
    if (result == nullptr) return E_POINTER;
    if (id == IID_IUnknown || id == IID_IOleClientSite) {
      *result = static_cast<IOleClientSite*>(this);
    } else if (id == IID_IOleInPlaceSite) {
      *result = static_cast<IOleInPlaceSite*>(this);
    } else if (id == IID_IOleWindow || id == IID_IOleInPlaceUIWindow || id == IID_IOleInPlaceFrame) {
      *result = static_cast<IOleInPlaceFrame*>(this);
    } else {
      *result = nullptr;
      return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references;
    if (left == 0) delete this;
    return left;
  }

  // IOleWindow, of the site and of the frame.
  STDMETHODIMP GetWindow(HWND* window) override {
    if (window == nullptr) return E_POINTER;
    *window = parent;
    return parent != nullptr ? S_OK : E_FAIL;
  }
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }

  STDMETHODIMP SaveObject() override { return E_NOTIMPL; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker** moniker) override {
    if (moniker != nullptr) *moniker = nullptr;
    return E_NOTIMPL;
  }
  STDMETHODIMP GetContainer(IOleContainer** container) override {
    if (container != nullptr) *container = nullptr;
    return E_NOINTERFACE;
  }
  STDMETHODIMP ShowObject() override { return S_OK; }
  STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
  STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

  STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnUIActivate() override { return S_OK; }
  STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT position, LPRECT clip,
                                LPOLEINPLACEFRAMEINFO info) override {
    if (frame == nullptr || document == nullptr || position == nullptr || clip == nullptr || info == nullptr) {
      return E_POINTER;
    }
    AddRef();
    *frame = this;
    *document = nullptr;
    *position = *clip = area;
    info->fMDIApp = FALSE;
    info->hwndFrame = parent;
    info->haccel = nullptr;
    info->cAccelEntries = 0;
    return S_OK;
  }
  STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
  STDMETHODIMP OnUIDeactivate(BOOL) override { return S_OK; }
  STDMETHODIMP OnInPlaceDeactivate() override { return S_OK; }
  STDMETHODIMP DiscardUndoState() override { return E_NOTIMPL; }
  STDMETHODIMP DeactivateAndUndo() override { return E_NOTIMPL; }
  STDMETHODIMP OnPosRectChange(LPCRECT) override { return S_OK; }  // the place is ours to give

  STDMETHODIMP GetBorder(LPRECT) override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
  STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject*, LPCOLESTR) override { return S_OK; }
  STDMETHODIMP InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return S_OK; }
  STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
  STDMETHODIMP RemoveMenus(HMENU) override { return S_OK; }
  STDMETHODIMP SetStatusText(LPCOLESTR) override { return S_OK; }
  STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }
  STDMETHODIMP TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

 private:
  ~Site() = default;

  const ModuleLock lock;
  ULONG references = 1;
  HWND parent;
  RECT area;
};

#pragma GCC diagnostic pop

HostedControl::HostedControl(HWND parent, const wchar_t* progId, const RECT& area) {
  CLSID id = {};
  require(CLSIDFromProgID(progId, &id));
  require(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IOleObject, control.putVoid()));
  require(control->QueryInterface(IID_IDispatch, automation.putVoid()));
  *site.put() = new Site(parent, area);
  show(parent, area);
}

void HostedControl::show(HWND parent, const RECT& area) {
  DWORD habits = 0;
  const bool siteFirst =
      SUCCEEDED(control->GetMiscStatus(DVASPECT_CONTENT, &habits)) && (habits & OLEMISC_SETCLIENTSITEFIRST) != 0;
  if (siteFirst) control->SetClientSite(site.get());
  ComPtr<IPersistStreamInit> state;
  if (SUCCEEDED(control->QueryInterface(IID_IPersistStreamInit, state.putVoid()))) state->InitNew();
  if (!siteFirst) control->SetClientSite(site.get());
  SIZEL extent = himetricOf(area);
  control->SetExtent(DVASPECT_CONTENT, &extent);
  control->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site.get(), 0, parent, &area);
}

HostedControl::~HostedControl() {
  if (!site) return;
  ComPtr<IOleInPlaceObject> place;
  if (SUCCEEDED(control->QueryInterface(IID_IOleInPlaceObject, place.putVoid()))) place->InPlaceDeactivate();
  control->Close(OLECLOSE_NOSAVE);
  control->SetClientSite(nullptr);
  site->leave();
}

HWND HostedControl::window() const {
  ComPtr<IOleInPlaceObject> placed;
  HWND window = nullptr;
  if (FAILED(control->QueryInterface(IID_IOleInPlaceObject, placed.putVoid()))) return nullptr;
  return SUCCEEDED(placed->GetWindow(&window)) ? window : nullptr;
}

void HostedControl::place(const RECT& area) {
  site->moveTo(area);
  SIZEL extent = himetricOf(area);
  control->SetExtent(DVASPECT_CONTENT, &extent);
  ComPtr<IOleInPlaceObject> placed;
  if (SUCCEEDED(control->QueryInterface(IID_IOleInPlaceObject, placed.putVoid()))) {
    placed->SetObjectRects(&area, &area);
  }
}

}  // namespace nerida

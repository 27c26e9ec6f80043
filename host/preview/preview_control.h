#pragma once

#include <ocidl.h>
#include <ole2.h>

#include <memory>

#include "host/preview/preview_window.h"
#include "host/win32/automation.h"
#include "host/win32/server.h"

namespace nerida::host {

/// The preview as a control: its members by name, and what control containers ask for.
class PreviewControl final : public IDispatch,
                             public IOleObject,
                             public IOleInPlaceObject,
                             public IOleInPlaceActiveObject,
                             public IOleControl,
                             public IPersistStreamInit,
                             public IViewObject2,
                             public PreviewListener {
 public:
  PreviewControl() : preview(*this) {}
  PreviewControl(const PreviewControl&) = delete;
  PreviewControl& operator=(const PreviewControl&) = delete;

  STDMETHODIMP QueryInterface(REFIID id, void** result) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override;

  // IDispatch
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID language, ITypeInfo** result) override;
  STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID language, DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID language, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT* badArgument) override;

  // IOleObject
  STDMETHODIMP SetClientSite(IOleClientSite* newSite) override;
  STDMETHODIMP GetClientSite(IOleClientSite** result) override;
  STDMETHODIMP SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
  STDMETHODIMP Close(DWORD saving) override;
  STDMETHODIMP SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker** moniker) override { return nothing(moniker); }
  STDMETHODIMP InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP GetClipboardData(DWORD, IDataObject** data) override { return nothing(data); }
  STDMETHODIMP DoVerb(LONG verb, LPMSG message, IOleClientSite* activeSite, LONG index, HWND parent,
                      LPCRECT place) override;
  STDMETHODIMP EnumVerbs(IEnumOLEVERB** verbs) override { return nothing(verbs); }
  STDMETHODIMP Update() override { return S_OK; }
  STDMETHODIMP IsUpToDate() override { return S_OK; }
  STDMETHODIMP GetUserClassID(CLSID* id) override;
  STDMETHODIMP GetUserType(DWORD, LPOLESTR* name) override { return nothing(name); }
  STDMETHODIMP SetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP GetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP Advise(IAdviseSink* sink, DWORD* connection) override;
  STDMETHODIMP Unadvise(DWORD connection) override;
  STDMETHODIMP EnumAdvise(IEnumSTATDATA** sinks) override { return nothing(sinks); }
  STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) override;
  STDMETHODIMP SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

  // IOleInPlaceObject, IOleInPlaceActiveObject
  STDMETHODIMP GetWindow(HWND* result) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP InPlaceDeactivate() override;
  STDMETHODIMP UIDeactivate() override;
  STDMETHODIMP SetObjectRects(LPCRECT place, LPCRECT clip) override;
  STDMETHODIMP ReactivateAndUndo() override { return INPLACE_E_NOTUNDOABLE; }
  STDMETHODIMP TranslateAccelerator(LPMSG) override { return S_FALSE; }
  STDMETHODIMP OnFrameWindowActivate(BOOL) override { return S_OK; }
  STDMETHODIMP OnDocWindowActivate(BOOL) override { return S_OK; }
  STDMETHODIMP ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) override { return S_OK; }
  STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }

  // IOleControl
  STDMETHODIMP GetControlInfo(CONTROLINFO*) override { return E_NOTIMPL; }
  STDMETHODIMP OnMnemonic(MSG*) override { return E_NOTIMPL; }
  STDMETHODIMP OnAmbientPropertyChange(DISPID) override { return S_OK; }
  STDMETHODIMP FreezeEvents(BOOL) override { return S_OK; }

  // IPersistStreamInit: nothing is kept.
  STDMETHODIMP GetClassID(CLSID* id) override { return GetUserClassID(id); }
  STDMETHODIMP IsDirty() override { return S_FALSE; }
  STDMETHODIMP Load(LPSTREAM) override { return S_OK; }
  STDMETHODIMP Save(LPSTREAM, BOOL) override { return S_OK; }
  STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) override;
  STDMETHODIMP InitNew() override { return S_OK; }

  // IViewObject2
  STDMETHODIMP Draw(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* target, HDC targetContext, HDC context,
                    LPCRECTL bounds, LPCRECTL windowBounds, WINBOOL(STDMETHODCALLTYPE* goOn)(ULONG_PTR),
                    ULONG_PTR goOnArgument) override;
  STDMETHODIMP GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE**) override { return S_FALSE; }
  STDMETHODIMP Freeze(DWORD, LONG, void*, DWORD*) override { return E_NOTIMPL; }
  STDMETHODIMP Unfreeze(DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
  STDMETHODIMP GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
  STDMETHODIMP GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, LPSIZEL size) override { return GetExtent(aspect, size); }

  void previewChanged() override;

 private:
  ~PreviewControl() override = default;

  template <typename Result>
  static HRESULT nothing(Result* result) {
    if (result == nullptr) return E_POINTER;
    *result = nullptr;
    return E_NOTIMPL;
  }
  HRESULT activate();

  ULONG references = 1;
  ModuleUse use;
  Preview preview;
  ComRef<IOleClientSite> site;
  ComRef<IOleInPlaceSite> placeSite;  // while there is a window
  ComRef<IOleAdviseHolder> closeSinks;
  ComRef<IAdviseSink> viewSink;
  DWORD viewAspects = 0;
  SIZEL extent = {5292, 5292};  // hundredths of a millimetre: 200 pixels at 96 dpi
  std::unique_ptr<PreviewWindow> window;
};

extern const CLSID previewClass;

}  // namespace nerida::host

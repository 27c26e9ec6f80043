#pragma once

#include <ocidl.h>
#include <ole2.h>

#include "platform/win32/com.h"

namespace nerida {

// What control containers ask for. The control has no window and nothing to keep: it is invisible while it runs, and
// shows a plain placeholder in designers.
class OleFace : public IOleObject,
                public IOleInPlaceObject,
                public IOleControl,
                public IPersistStreamInit,
                public IPersistPropertyBag,
                public IProvideClassInfo2,
                public IViewObject2 {
 public:
  // IOleObject
  STDMETHODIMP SetClientSite(IOleClientSite* site) override;
  STDMETHODIMP GetClientSite(IOleClientSite** site) override;
  STDMETHODIMP SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
  STDMETHODIMP Close(DWORD) override;
  STDMETHODIMP SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker** moniker) override;
  STDMETHODIMP InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP GetClipboardData(DWORD, IDataObject** data) override;
  STDMETHODIMP DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) override;
  STDMETHODIMP EnumVerbs(IEnumOLEVERB** verbs) override;
  STDMETHODIMP Update() override { return S_OK; }
  STDMETHODIMP IsUpToDate() override { return S_OK; }
  STDMETHODIMP GetUserClassID(CLSID* id) override;
  STDMETHODIMP GetUserType(DWORD, LPOLESTR* name) override;
  STDMETHODIMP SetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP GetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP Advise(IAdviseSink* sink, DWORD* connection) override;
  STDMETHODIMP Unadvise(DWORD connection) override;
  STDMETHODIMP EnumAdvise(IEnumSTATDATA** sinks) override;
  STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) override;
  STDMETHODIMP SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

  // IOleInPlaceObject
  STDMETHODIMP GetWindow(HWND* window) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP InPlaceDeactivate() override { return S_OK; }
  STDMETHODIMP UIDeactivate() override { return S_OK; }
  STDMETHODIMP SetObjectRects(LPCRECT, LPCRECT) override { return S_OK; }
  STDMETHODIMP ReactivateAndUndo() override { return INPLACE_E_NOTUNDOABLE; }

  // IOleControl
  STDMETHODIMP GetControlInfo(CONTROLINFO*) override { return E_NOTIMPL; }
  STDMETHODIMP OnMnemonic(MSG*) override { return E_NOTIMPL; }
  STDMETHODIMP OnAmbientPropertyChange(DISPID) override { return S_OK; }
  STDMETHODIMP FreezeEvents(BOOL) override { return S_OK; }

  // IPersistStreamInit, IPersistPropertyBag
  STDMETHODIMP GetClassID(CLSID* id) override;
  STDMETHODIMP IsDirty() override { return S_FALSE; }
  STDMETHODIMP Load(LPSTREAM) override { return S_OK; }
  STDMETHODIMP Save(LPSTREAM, BOOL) override { return S_OK; }
  STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) override;
  STDMETHODIMP InitNew() override { return S_OK; }
  STDMETHODIMP Load(IPropertyBag*, IErrorLog*) override { return S_OK; }
  STDMETHODIMP Save(IPropertyBag*, BOOL, BOOL) override { return S_OK; }

  // IProvideClassInfo2
  STDMETHODIMP GetClassInfo(ITypeInfo** info) override;
  STDMETHODIMP GetGUID(DWORD kind, GUID* id) override;

  // IViewObject2
  STDMETHODIMP Draw(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* target, HDC targetContext, HDC context,
                    LPCRECTL bounds, LPCRECTL windowBounds, WINBOOL(STDMETHODCALLTYPE* goOn)(ULONG_PTR),
                    ULONG_PTR goOnArgument) override;
  STDMETHODIMP GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE**) override { return S_FALSE; }
  STDMETHODIMP Freeze(DWORD, LONG, void*, DWORD*) override { return E_NOTIMPL; }
  STDMETHODIMP Unfreeze(DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
  STDMETHODIMP GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
  STDMETHODIMP GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* target, LPSIZEL size) override;

 protected:
  OleFace() = default;
  ~OleFace() = default;

 private:
  HRESULT provideHolder();

  ComPtr<IOleClientSite> clientSite;
  ComPtr<IOleAdviseHolder> holder;
  ComPtr<IAdviseSink> viewSink;
  DWORD viewAspects = 0;
  DWORD viewFlags = 0;
  SIZEL extent = {1693, 1693};  // in hundredths of a millimetre: 64 pixels at 96 dpi
};

// How containers are to treat the control; registered too.
inline constexpr DWORD miscStatus =
    OLEMISC_SETCLIENTSITEFIRST | OLEMISC_INVISIBLEATRUNTIME | OLEMISC_INSIDEOUT | OLEMISC_CANTLINKINSIDE;

inline constexpr const wchar_t* controlTitle = L"NeridaWindow Control";

}  // namespace nerida

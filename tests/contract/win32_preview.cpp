#include "tests/contract/win32_preview.h"

#include <ole2.h>

#include <string_view>

#include "platform/win32/com.h"
#include "platform/win32/registry_handle.h"
#include "tests/windows/counted_object.h"

namespace nerida {
namespace {

constexpr CLSID classPreview = {0x2b8f3d61, 0x7c0e, 0x4a55, {0x9d, 0x14, 0x6e, 0x83, 0x52, 0xa7, 0x0c, 0xf9}};
constexpr const wchar_t* progIdKey = L"Software\\Classes\\ZephraBrowser.Preview";

constexpr const wchar_t* previewNames[] = {L"ModelFile",  L"ModelName",      L"StyleName",
                                           L"ModelScale", L"GetOrientation", L"Load"};
enum PreviewMember : DISPID { modelFile = 1, modelName, styleName, modelScale, getOrientation, load };

HRESULT answerText(VARIANT* result, const wchar_t* text) {
  result->vt = VT_BSTR;
  result->bstrVal = SysAllocString(text);
  return S_OK;
}

HRESULT answerNumber(VARIANT* result, LONG number) {
  result->vt = VT_I4;
  result->lVal = number;
  return S_OK;
}

// The last argument comes first.
HRESULT fillAngles(VARIANTARG* arguments) {
  constexpr LONG angles[] = {36000, -200, 100};
  for (int i = 0; i < 3; ++i) {
    if (arguments[i].vt != (VT_BYREF | VT_I4)) return DISP_E_TYPEMISMATCH;
    *arguments[i].plVal = angles[i];
  }
  return S_OK;
}

HRESULT refuseToLoad(EXCEPINFO* exception) {
  *exception = {};
  exception->wCode = 53;
  exception->bstrDescription = SysAllocString(L"No such model");
  return DISP_E_EXCEPTION;
}

// A control without a window: what a container cannot do without, and the members.
class PlainPreview final : public CountedObject<IOleObject, IDispatch> {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** result) override {
    *result = nullptr;
    if (id == IID_IUnknown || id == IID_IOleObject) *result = static_cast<IOleObject*>(this);
    if (id == IID_IDispatch) *result = static_cast<IDispatch*>(this);
    if (*result == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }

  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR** asked, UINT, LCID, DISPID* ids) override {
    return findMember(previewNames, asked[0], ids);
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT*) override {
    switch (id) {
      case modelFile:
      case modelName: {
        VARIANT& kept = id == modelFile ? file : name;
        return (flags & DISPATCH_PROPERTYPUT) != 0 ? VariantCopy(&kept, parameters->rgvarg)
                                                   : VariantCopy(result, &kept);
      }
      case styleName:
        return answerText(result, L"Ink Outline");
      case modelScale:
        return answerNumber(result, 70000);
      case getOrientation:
        return fillAngles(parameters->rgvarg);
      default:
        return file.vt == VT_BSTR && std::wstring_view(file.bstrVal) == L"nobody.twe" ? refuseToLoad(exception) : S_OK;
    }
  }

  STDMETHODIMP SetClientSite(IOleClientSite*) override { return S_OK; }
  STDMETHODIMP GetClientSite(IOleClientSite**) override { return E_NOTIMPL; }
  STDMETHODIMP SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
  STDMETHODIMP Close(DWORD) override { return S_OK; }
  STDMETHODIMP SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  STDMETHODIMP InitFromData(IDataObject*, WINBOOL, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP GetClipboardData(DWORD, IDataObject**) override { return E_NOTIMPL; }
  STDMETHODIMP DoVerb(LONG, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) override { return E_NOTIMPL; }
  STDMETHODIMP EnumVerbs(IEnumOLEVERB**) override { return E_NOTIMPL; }
  STDMETHODIMP Update() override { return S_OK; }
  STDMETHODIMP IsUpToDate() override { return S_OK; }
  STDMETHODIMP GetUserClassID(CLSID*) override { return E_NOTIMPL; }
  STDMETHODIMP GetUserType(DWORD, LPOLESTR*) override { return E_NOTIMPL; }
  STDMETHODIMP SetExtent(DWORD, SIZEL*) override { return S_OK; }
  STDMETHODIMP GetExtent(DWORD, SIZEL*) override { return E_NOTIMPL; }
  STDMETHODIMP Advise(IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
  STDMETHODIMP Unadvise(DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP EnumAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }
  STDMETHODIMP GetMiscStatus(DWORD, DWORD*) override { return E_NOTIMPL; }
  STDMETHODIMP SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

 private:
  Variant file;
  Variant name;
};

IUnknown* createPlainPreview() { return static_cast<IOleObject*>(new PlainPreview); }

void removeName() { RegDeleteTreeW(HKEY_LOCAL_MACHINE, progIdKey); }

void writeName() {
  wchar_t* text = nullptr;
  StringFromCLSID(classPreview, &text);
  RegistryHandle key;
  RegCreateKeyExW(HKEY_LOCAL_MACHINE, (std::wstring(progIdKey) + L"\\CLSID").c_str(), 0, nullptr, 0, KEY_SET_VALUE,
                  nullptr, key.put(), nullptr);
  key.setText(L"", text);
  CoTaskMemFree(text);
}

}  // namespace

PreviewRegistration::PreviewRegistration() : registered(classPreview, createPlainPreview) {}

PreviewRegistration::~PreviewRegistration() {
  if (touched) removeName();
}

void PreviewRegistration::setPresent(bool present) {
  touched = true;
  removeName();
  if (present) writeName();
}

}  // namespace nerida

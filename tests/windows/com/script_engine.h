#pragma once

#include <activscp.h>
#include <ole2.h>

#include <map>
#include <string>

#include "platform/win32/com.h"

namespace nerida {

// One of the system's script languages ("VBScript", "JScript"), with the objects that a program gives it.
class ScriptEngine : public IActiveScriptSite, public IActiveScriptSiteWindow {
 public:
  explicit ScriptEngine(const std::wstring& language);
  virtual ~ScriptEngine();

  void add(const std::wstring& name, IDispatch* object);
  // Compiles and runs a script. False after an error, which error() describes.
  bool run(const std::wstring& code);
  const std::wstring& error() const { return errorText; }
  // An object that a global function of the script returns.
  ComPtr<IDispatch> object(const std::wstring& function);

  STDMETHODIMP QueryInterface(REFIID id, void** result) override;
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetLCID(LCID*) override { return E_NOTIMPL; }
  STDMETHODIMP GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** item, ITypeInfo** info) override;
  STDMETHODIMP GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
  STDMETHODIMP OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
  STDMETHODIMP OnStateChange(SCRIPTSTATE) override { return S_OK; }
  STDMETHODIMP OnScriptError(IActiveScriptError* error) override;
  STDMETHODIMP OnEnterScript() override { return S_OK; }
  STDMETHODIMP OnLeaveScript() override { return S_OK; }
  STDMETHODIMP GetWindow(HWND* window) override;
  STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }

 private:
  ComPtr<IActiveScript> engine;
  std::map<std::wstring, ComPtr<IDispatch>> items;
  std::wstring errorText;
};

}  // namespace nerida

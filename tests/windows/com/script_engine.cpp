#include "tests/windows/com/script_engine.h"

#include <stdexcept>

namespace nerida {
namespace {

#ifdef _WIN64
using Parser = IActiveScriptParse64;
constexpr IID iidParser = {0xc7ef7658, 0xe1ee, 0x480e, {0x97, 0xea, 0xd5, 0x2c, 0xb4, 0xd7, 0x6d, 0x17}};
#else
using Parser = IActiveScriptParse32;
constexpr IID iidParser = {0xbb1a2ae2, 0xa4f9, 0x11cf, {0x8f, 0x20, 0x00, 0x80, 0x5f, 0x2c, 0xd0, 0x64}};
#endif
constexpr IID iidActiveScript = {0xbb1a2ae1, 0xa4f9, 0x11cf, {0x8f, 0x20, 0x00, 0x80, 0x5f, 0x2c, 0xd0, 0x64}};
constexpr IID iidSite = {0xdb01a1e3, 0xa42b, 0x11cf, {0x8f, 0x20, 0x00, 0x80, 0x5f, 0x2c, 0xd0, 0x64}};
constexpr IID iidSiteWindow = {0xd10f6761, 0x83e9, 0x11cf, {0x8f, 0x20, 0x00, 0x80, 0x5f, 0x2c, 0xd0, 0x64}};

void require(HRESULT status, const char* what) {
  if (FAILED(status)) throw std::runtime_error(what);
}

std::wstring take(BSTR& text) {
  std::wstring result(text == nullptr ? L"" : text, SysStringLen(text));
  SysFreeString(text);
  text = nullptr;
  return result;
}

ComPtr<Parser> parserOf(IActiveScript& engine) {
  ComPtr<Parser> parser;
  require(engine.QueryInterface(iidParser, parser.putVoid()), "no script parser");
  return parser;
}

}  // namespace

ScriptEngine::ScriptEngine(const std::wstring& language) {
  CLSID id;
  require(CLSIDFromProgID(language.c_str(), &id), "no such script language");
  require(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, iidActiveScript, engine.putVoid()), "no script engine");
  require(parserOf(*engine.get())->InitNew(), "the script engine does not start");
  require(engine->SetScriptSite(this), "the script engine refuses its site");
}

ScriptEngine::~ScriptEngine() { engine->Close(); }

void ScriptEngine::add(const std::wstring& name, IDispatch* object) {
  items.emplace(name, ComPtr<IDispatch>(object));
  engine->AddNamedItem(name.c_str(), SCRIPTITEM_ISVISIBLE);
}

bool ScriptEngine::run(const std::wstring& code) {
  engine->SetScriptState(SCRIPTSTATE_STARTED);
  EXCEPINFO exception = {};
  const HRESULT status =
      parserOf(*engine.get())
          ->ParseScriptText(code.c_str(), nullptr, nullptr, nullptr, 0, 1, SCRIPTTEXT_ISVISIBLE, nullptr, &exception);
  if (FAILED(status) && errorText.empty()) errorText = L"status " + std::to_wstring(status);
  return SUCCEEDED(status) && errorText.empty();
}

ComPtr<IDispatch> ScriptEngine::object(const std::wstring& function) {
  ComPtr<IDispatch> global;
  require(engine->GetScriptDispatch(nullptr, global.put()), "no global object");
  auto* name = const_cast<LPOLESTR>(function.c_str());
  DISPID id = 0;
  require(global->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), "no such function");
  DISPPARAMS none = {};
  Variant result;
  require(global->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, &result, nullptr, nullptr),
          "the function fails");
  if (result.vt != VT_DISPATCH) throw std::runtime_error("the function returns no object");
  return ComPtr<IDispatch>(result.pdispVal);
}

STDMETHODIMP ScriptEngine::QueryInterface(REFIID id, void** result) {
  *result = nullptr;
  if (id == IID_IUnknown || id == iidSite) *result = static_cast<IActiveScriptSite*>(this);
  if (id == iidSiteWindow) *result = static_cast<IActiveScriptSiteWindow*>(this);
  return *result != nullptr ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP ScriptEngine::GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** item, ITypeInfo**) {
  const auto found = items.find(name);
  if (found == items.end() || (mask & SCRIPTINFO_IUNKNOWN) == 0) return TYPE_E_ELEMENTNOTFOUND;
  *item = ComPtr<IDispatch>(found->second).release();
  return S_OK;
}

STDMETHODIMP ScriptEngine::OnScriptError(IActiveScriptError* scriptError) {
  DWORD context = 0;
  ULONG line = 0;
  LONG column = 0;
  EXCEPINFO exception = {};
  scriptError->GetSourcePosition(&context, &line, &column);
  scriptError->GetExceptionInfo(&exception);
  if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
  const std::wstring source = take(exception.bstrSource);
  errorText = L"line " + std::to_wstring(line + 1) + L": error " + std::to_wstring(exception.scode & 0xFFFF) + L" (" +
              source + L"): " + take(exception.bstrDescription);
  return S_FALSE;  // kept for the end only: a native caller of the script still gets the number
}

STDMETHODIMP ScriptEngine::GetWindow(HWND* window) {
  *window = nullptr;
  return S_OK;
}

}  // namespace nerida

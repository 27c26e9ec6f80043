// Runs a script and shows its errors, which the system's own script host keeps to itself:
//   script_host LANGUAGE FILE [CONTROL]
// With a control's name, the control lies in the system's control container, and the script knows it as "Contained".
// Ends with 0 after a script without errors. WScript.Echo prints a line; messages are handled until the script ends.

#include <cstdio>
#include <fstream>
#include <iterator>
#include <optional>

#include "tests/windows/com/contained_control.h"
#include "tests/windows/com/script_engine.h"

namespace nerida {
namespace {

// The script's "WScript": Echo prints, Sleep handles messages for some milliseconds.
class HostObject : public IDispatch {
 public:
  virtual ~HostObject() = default;
  STDMETHODIMP QueryInterface(REFIID id, void** result) override {
    *result = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
    return *result != nullptr ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR** names, UINT, LCID, DISPID* ids) override {
    *ids = lstrcmpiW(names[0], L"Echo") == 0 ? 1 : lstrcmpiW(names[0], L"Sleep") == 0 ? 2 : DISPID_UNKNOWN;
    return *ids == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) override {
    if (parameters->cArgs != 1) return DISP_E_BADPARAMCOUNT;
    return id == 1 ? echo(parameters->rgvarg[0]) : sleep(parameters->rgvarg[0]);
  }

 private:
  static HRESULT echo(VARIANT& value) {
    Variant text;
    const HRESULT status = VariantChangeType(&text, &value, VARIANT_ALPHABOOL, VT_BSTR);
    if (SUCCEEDED(status)) std::printf("%s\n", utf8({text.bstrVal, SysStringLen(text.bstrVal)}).c_str());
    std::fflush(stdout);
    return status;
  }

  static HRESULT sleep(VARIANT& value) {
    Variant milliseconds;
    const HRESULT status = VariantChangeType(&milliseconds, &value, 0, VT_I4);
    if (FAILED(status)) return status;
    const DWORD end = GetTickCount() + static_cast<DWORD>(milliseconds.lVal);
    while (GetTickCount() < end) {
      MSG message;
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
      }
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return S_OK;
  }
};

int runScript(const char* language, const char* path, const char* control) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    std::printf("cannot read %s\n", path);
    return 1;
  }
  const std::string code{std::istreambuf_iterator<char>(file), {}};
  HostObject host;
  ScriptEngine engine(wide(language));
  engine.add(L"WScript", &host);
  std::optional<ContainedControl> container;
  if (control != nullptr) {
    container.emplace(wide(control));
    engine.add(L"Contained", container->automation().get());
  }
  const bool ran = engine.run(wide(code));
  if (!ran) std::printf("%s: %s\n", path, utf8(engine.error()).c_str());
  return ran ? 0 : 1;
}

}  // namespace
}  // namespace nerida

int main(int count, char** arguments) {
  if (count != 3 && count != 4) return 2;
  OleInitialize(nullptr);
  const int status = nerida::runScript(arguments[1], arguments[2], count == 4 ? arguments[3] : nullptr);
  OleUninitialize();
  return status;
}

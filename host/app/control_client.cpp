#include "host/app/control_client.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

namespace nerida::host {
namespace {

constexpr const wchar_t* controlClass = L"ActiveNeridaToolbar.NeridaWindow";

std::string codeText(HRESULT status) {
  char text[16];
  std::snprintf(text, sizeof text, "%08lX", static_cast<unsigned long>(status));
  return text;
}

void check(HRESULT status, const std::string& what) {
  if (FAILED(status)) throw ControlError(what + " (error " + codeText(status) + ").");
}

// Takes the texts of an automation exception over.
std::string descriptionOf(EXCEPINFO& exception) {
  if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
  std::string text = utf8(viewOf(exception.bstrDescription));
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrHelpFile);
  return text;
}

VARIANT shortValue(LONG value) {
  VARIANT made;
  made.vt = VT_I2;
  made.iVal = static_cast<SHORT>(value);
  return made;
}

}  // namespace

void ControlClient::create() {
  if (control) return;
  CLSID clsid;
  check(CLSIDFromProgID(controlClass, &clsid), "The editing toolbar is not installed on this computer");
  check(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, control.out()),
        "The editing toolbar could not be created");
}

void ControlClient::call(const wchar_t* member, std::span<VARIANT> arguments, VARIANT& result) {
  const std::string failed = "The editing toolbar failed in " + utf8(member);
  DISPID id = DISPID_UNKNOWN;
  auto* name = const_cast<wchar_t*>(member);
  check(control->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), failed);
  DISPPARAMS parameters = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
  EXCEPINFO exception = {};
  const HRESULT status =
      control->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, &result, &exception, nullptr);
  if (status == DISP_E_EXCEPTION) throw ControlError(failed + ": " + descriptionOf(exception));
  check(status, failed);
}

LONG ControlClient::callForNumber(const wchar_t* member, std::span<VARIANT> arguments) {
  Variant result;
  call(member, arguments, result);
  check(VariantChangeType(&result, &result, 0, VT_I4), "The editing toolbar gave an unexpected answer");
  return result.lVal;
}

void ControlClient::bind(IDispatch& model, HWND window) {
  create();
  VARIANT arguments[2];
  arguments[0].vt = VT_I4;
  arguments[0].lVal = static_cast<LONG>(reinterpret_cast<std::intptr_t>(window));
  arguments[1].vt = VT_DISPATCH;
  arguments[1].pdispVal = &model;
  // The control has shown its own message by now; the toolbar is of use even so.
  callForNumber(L"ToolbarInit", arguments);
}

HWND ControlClient::show(POINT corner) {
  VARIANT arguments[] = {shortValue(corner.y), shortValue(corner.x)};
  const LONG handle = callForNumber(L"ToolbarShow", arguments);
  return handle == -1 ? nullptr : pointerOf<HWND>(handle);
}

void ControlClient::hide() { callForNumber(L"ToolbarHide"); }
bool ControlClient::toolbarVisible() { return control && callForNumber(L"IsToolbarVisible") != 0; }
bool ControlClient::catalogVisible() { return control && callForNumber(L"IsCatalogVisible") != 0; }

void ControlClient::dispose() noexcept {
  if (!control) return;
  try {
    callForNumber(L"ToolbarDispose");
  } catch (...) {
    // It is released below in any case.
  }
  control.reset();
}

}  // namespace nerida::host

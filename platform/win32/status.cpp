#include "platform/win32/status.h"

#include <ole2.h>

#include <string>

#include "platform/win32/com.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

struct Row {
  HRESULT status;
  std::int32_t number;
};

constexpr Row rows[] = {
    {DISP_E_UNKNOWNNAME, error::noSuchMember},
    {DISP_E_MEMBERNOTFOUND, error::noSuchMember},
    {DISP_E_TYPEMISMATCH, error::typeMismatch},
    {DISP_E_OVERFLOW, error::overflow},
    {DISP_E_BADINDEX, error::subscriptOutOfRange},
    {E_OUTOFMEMORY, error::outOfMemory},
    {E_INVALIDARG, error::invalidCall},
    {DISP_E_BADPARAMCOUNT, error::wrongArgumentCount},
    {DISP_E_PARAMNOTOPTIONAL, error::argumentNotOptional},
    {E_NOTIMPL, error::notImplemented},
    {E_NOINTERFACE, error::noInterface},
    {REGDB_E_CLASSNOTREG, error::cannotCreateObject},
};

// Run-time errors travel as status codes of this form, the number in the low word.
bool carriesErrorNumber(HRESULT status) { return (static_cast<ULONG>(status) & 0xFFFF0000U) == 0x800A0000U; }

std::int32_t errorNumber(HRESULT status) {
  for (const Row& row : rows) {
    if (row.status == status) return row.number;
  }
  return carriesErrorNumber(status) ? static_cast<std::int32_t>(static_cast<ULONG>(status) & 0xFFFFU) : status;
}

void completeException(EXCEPINFO& exception) {
  const auto fillIn = exception.pfnDeferredFillIn;
  exception.pfnDeferredFillIn = nullptr;
  if (fillIn != nullptr) fillIn(&exception);
}

std::string takeText(BSTR& text) {
  std::string result = text == nullptr ? std::string() : utf8({text, SysStringLen(text)});
  SysFreeString(text);
  text = nullptr;
  return result;
}

}  // namespace

Error errorFromStatus(HRESULT status) { return Error(errorNumber(status)); }

Error errorFromComponent(HRESULT status, IUnknown& component, REFIID calledInterface) {
  ComPtr<ISupportErrorInfo> support;
  ComPtr<IErrorInfo> info;
  const bool tellsMore = SUCCEEDED(component.QueryInterface(IID_ISupportErrorInfo, support.putVoid())) &&
                         support->InterfaceSupportsErrorInfo(calledInterface) == S_OK &&
                         GetErrorInfo(0, info.put()) == S_OK;
  BSTR description = nullptr;
  if (tellsMore) info->GetDescription(&description);
  const std::string text = takeText(description);
  return text.empty() ? errorFromStatus(status) : Error(errorNumber(status), text);
}

Error errorFromInvoke(HRESULT status, EXCEPINFO& exception) {
  if (status != DISP_E_EXCEPTION) return errorFromStatus(status);
  completeException(exception);
  const std::int32_t number = exception.wCode != 0 ? exception.wCode : errorNumber(exception.scode);
  takeText(exception.bstrSource);
  takeText(exception.bstrHelpFile);
  std::string description = takeText(exception.bstrDescription);
  return description.empty() ? Error(number) : Error(number, std::move(description));
}

}  // namespace nerida

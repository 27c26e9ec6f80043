#include "host/win32/arguments.h"

namespace nerida::host {
namespace {

SAFEARRAY* newTextArray(const std::vector<std::string>& texts) {
  SAFEARRAY* made = SafeArrayCreateVector(VT_BSTR, 0, static_cast<ULONG>(texts.size()));
  if (made == nullptr) throw std::bad_alloc();
  auto** elements = static_cast<BSTR*>(made->pvData);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const std::wstring text = wide(texts[i]);
    elements[i] = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  }
  return made;
}

}  // namespace

CallRefused Arguments::refusal(HRESULT status, std::size_t index) const {
  return {status, static_cast<UINT>(values.size() - 1 - index)};
}

void Arguments::convert(std::size_t index, VARTYPE type, VARIANT& result) const {
  HRESULT status = VariantCopyInd(&result, &at(index));
  if (SUCCEEDED(status)) status = VariantChangeType(&result, &result, 0, type);
  if (FAILED(status)) throw refusal(status, index);
}

int Arguments::number(std::size_t index) const {
  Variant value;
  convert(index, VT_I4, value);
  return value.lVal;
}

bool Arguments::boolean(std::size_t index) const {
  Variant value;
  convert(index, VT_BOOL, value);
  return value.boolVal != VARIANT_FALSE;
}

std::wstring Arguments::text(std::size_t index) const {
  Variant value;
  convert(index, VT_BSTR, value);
  return std::wstring(viewOf(value.bstrVal));
}

void Arguments::replace(std::size_t index, VARIANT& value) const {
  VARIANTARG& target = at(index);
  if (target.vt != (VT_BYREF | VT_VARIANT)) throw refusal(DISP_E_TYPEMISMATCH, index);
  const HRESULT status = VariantCopy(target.pvarVal, &value);
  if (FAILED(status)) throw refusal(status, index);
}

void Arguments::store(std::size_t index, int value) const {
  VARIANTARG& target = at(index);
  if (target.vt == (VT_BYREF | VT_I4)) {
    *target.plVal = value;
  } else if (target.vt == (VT_BYREF | VT_I2)) {
    *target.piVal = static_cast<SHORT>(value);
  } else {
    Variant stored;
    stored.vt = VT_I4;
    stored.lVal = value;
    replace(index, stored);
  }
}

void Arguments::store(std::size_t index, const std::vector<std::string>& texts) const {
  Variant stored;
  stored.parray = newTextArray(texts);
  stored.vt = VT_ARRAY | VT_BSTR;
  replace(index, stored);
}

void answer(VARIANT* result, int value) {
  if (result == nullptr) return;
  result->vt = VT_I4;
  result->lVal = value;
}

void answer(VARIANT* result, bool value) {
  if (result == nullptr) return;
  result->vt = VT_BOOL;
  result->boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
}

void answer(VARIANT* result, const std::string& value) {
  if (result == nullptr) return;
  result->bstrVal = newBstr(wide(value));
  result->vt = VT_BSTR;
}

MemberError unusableFile(const std::filesystem::path& file, const std::string& why) {
  std::error_code ignored;
  return {std::filesystem::exists(file, ignored) ? invalidPropertyValue : fileNotFound, why};
}

}  // namespace nerida::host

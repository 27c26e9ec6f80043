#include "host/search/component/arrays.h"

#include <algorithm>

namespace nerida::host {

Array::Array(VARTYPE type, std::size_t count)
    : array(SafeArrayCreateVector(type, 0, static_cast<ULONG>(count))), type(type) {
  if (array == nullptr) throw std::bad_alloc();
}

Array::Array(std::span<const std::wstring> texts) : Array(VT_BSTR, texts.size()) {
  std::ranges::transform(texts, static_cast<BSTR*>(array->pvData), newBstr);
}

Array::Array(std::span<const std::int32_t> numbers) : Array(VT_I4, numbers.size()) { copy(numbers); }

Array::Array(std::span<const std::int16_t> numbers) : Array(VT_I2, numbers.size()) { copy(numbers); }

template <typename Number>
void Array::copy(std::span<const Number> numbers) {
  std::ranges::copy(numbers, static_cast<Number*>(array->pvData));
}

Array Array::asVariants() const {
  const ULONG count = array->rgsabound[0].cElements;
  Array result(VT_VARIANT, count);
  auto* variants = static_cast<VARIANT*>(result.array->pvData);
  for (ULONG i = 0; i < count; ++i) {
    VARIANT& variant = variants[i];
    if (type == VT_BSTR) variant.bstrVal = newBstr(viewOf(static_cast<BSTR*>(array->pvData)[i]));
    if (type == VT_I4) variant.lVal = static_cast<LONG*>(array->pvData)[i];
    if (type == VT_I2) variant.iVal = static_cast<SHORT*>(array->pvData)[i];
    variant.vt = type;
  }
  return result;
}

HRESULT Array::replace(SAFEARRAY** target) {
  if (*target != nullptr) {
    const HRESULT status = SafeArrayDestroy(*target);
    if (FAILED(status)) return status;
  }
  *target = release();
  return S_OK;
}

HRESULT store(VARIANTARG& target, Array array) {
  if ((target.vt & VT_BYREF) == 0) return S_OK;
  if (target.vt == (VT_BYREF | VT_ARRAY | array.elements())) return array.replace(target.pparray);
  if (target.vt != (VT_BYREF | VT_VARIANT)) return DISP_E_TYPEMISMATCH;
  Array variants = array.asVariants();
  const HRESULT status = VariantClear(target.pvarVal);
  if (FAILED(status)) return status;
  target.pvarVal->parray = variants.release();
  target.pvarVal->vt = VT_ARRAY | VT_VARIANT;
  return S_OK;
}

HRESULT store(VARIANTARG& target, LONG number) {
  if ((target.vt & VT_BYREF) == 0) return S_OK;
  if (target.vt == (VT_BYREF | VT_I4)) {
    *target.plVal = number;
    return S_OK;
  }
  if (target.vt != (VT_BYREF | VT_VARIANT)) return DISP_E_TYPEMISMATCH;
  const HRESULT status = VariantClear(target.pvarVal);
  if (FAILED(status)) return status;
  target.pvarVal->lVal = number;
  target.pvarVal->vt = VT_I4;
  return S_OK;
}

}  // namespace nerida::host

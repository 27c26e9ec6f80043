#include "platform/win32/safe_array.h"

#include <new>

#include "platform/win32/variant.h"

namespace nerida {
namespace {

struct SafeArrayDestroyer {
  void operator()(SAFEARRAY* array) const { SafeArrayDestroy(array); }
};
using SafeArrayOwner = std::unique_ptr<SAFEARRAY, SafeArrayDestroyer>;

bool fitsVariant(VARTYPE elementType) { return elementType != VT_RECORD && elementType != VT_EMPTY; }

// Copies an element into a variant of the array's element type.
HRESULT copyElement(SAFEARRAY* array, LONG index, VARTYPE elementType, Variant& element) {
  if (elementType == VT_VARIANT) return SafeArrayGetElement(array, &index, &element);
  if (elementType == VT_DECIMAL) {
    const HRESULT status = SafeArrayGetElement(array, &index, &element.decVal);
    element.vt = VT_DECIMAL;
    return status;
  }
  const HRESULT status = SafeArrayGetElement(array, &index, &element.llVal);
  if (SUCCEEDED(status)) element.vt = elementType;
  return status;
}

}  // namespace

SAFEARRAY* toSafeArray(const Array& array) {
  SafeArrayOwner result(SafeArrayCreateVector(VT_VARIANT, array.lowerBound, static_cast<ULONG>(array.elements.size())));
  if (result == nullptr) throw std::bad_alloc();
  LONG index = array.lowerBound;
  for (const Value& value : array.elements) {
    Variant element;
    toVariant(value, element);
    if (FAILED(SafeArrayPutElement(result.get(), &index, &element))) throw std::bad_alloc();
    ++index;
  }
  return result.release();
}

std::shared_ptr<const Array> fromSafeArray(SAFEARRAY* array) {
  auto result = std::make_shared<Array>();
  if (array == nullptr) return result;
  if (SafeArrayGetDim(array) != 1) return nullptr;
  VARTYPE elementType = VT_EMPTY;
  LONG first = 0;
  LONG last = -1;
  if (FAILED(SafeArrayGetVartype(array, &elementType)) || !fitsVariant(elementType)) return nullptr;
  if (FAILED(SafeArrayGetLBound(array, 1, &first)) || FAILED(SafeArrayGetUBound(array, 1, &last))) return nullptr;
  result->lowerBound = first;
  for (long long index = first; index <= last; ++index) {
    Variant element;
    if (FAILED(copyElement(array, static_cast<LONG>(index), elementType, element))) return nullptr;
    result->elements.push_back(fromVariant(element));
  }
  return result;
}

}  // namespace nerida

#include "platform/win32/variant.h"

#include <limits>
#include <new>

#include "platform/automation.h"
#include "platform/error.h"
#include "platform/win32/automation.h"
#include "platform/win32/safe_array.h"

namespace nerida {
namespace {

class OpaqueObject : public Object {
 public:
  Value get(const std::string&) override { throw Error(error::noSuchMember); }
  void let(const std::string&, const Value&) override { throw Error(error::noSuchMember); }
  Value call(const std::string&, std::span<Argument>) override { throw Error(error::noSuchMember); }
};

Value opaque() { return std::make_shared<OpaqueObject>(); }

// The system takes variants that it only reads without const.
VARIANT* input(const VARIANT& variant) { return const_cast<VARIANT*>(&variant); }

Value converted(const VARIANT& variant, VARTYPE type) {
  Variant result;
  if (FAILED(VariantChangeType(&result, input(variant), 0, type))) return opaque();
  return fromVariant(result);
}

// The narrowest of 32-bit integer and double that holds the number.
Value wholeNumber(const VARIANT& variant) {
  Variant result;
  const HRESULT status = VariantChangeType(&result, input(variant), 0, VT_I4);
  return SUCCEEDED(status) ? Value(static_cast<std::int32_t>(result.lVal)) : converted(variant, VT_R8);
}

Value fromUnknown(IUnknown* unknown) {
  if (unknown == nullptr) return ObjectRef();
  ComPtr<IDispatch> dispatch;
  if (FAILED(unknown->QueryInterface(IID_IDispatch, dispatch.putVoid()))) return opaque();
  return wrapDispatch(dispatch.get());
}

Value fromReference(const VARIANT& variant) {
  Variant target;
  if (FAILED(VariantCopyInd(&target, input(variant)))) return opaque();
  return fromVariant(target);
}

Value fromArrayVariant(const VARIANT& variant) {
  SAFEARRAY* array = (variant.vt & VT_BYREF) != 0 ? *variant.pparray : variant.parray;
  auto result = fromSafeArray(array);
  return result != nullptr ? Value(std::move(result)) : opaque();
}

class ToVariant {
 public:
  explicit ToVariant(VARIANT& target) : target(target) {}

  void operator()(std::monostate) const {}
  void operator()(Null) const { target.vt = VT_NULL; }
  void operator()(bool value) const {
    target.vt = VT_BOOL;
    target.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  }
  void operator()(std::int16_t value) const {
    target.vt = VT_I2;
    target.iVal = value;
  }
  void operator()(std::int32_t value) const {
    target.vt = VT_I4;
    target.lVal = value;
  }
  void operator()(double value) const {
    target.vt = VT_R8;
    target.dblVal = value;
  }
  void operator()(const std::string& value) const {
    target.bstrVal = Bstr(value).release();
    target.vt = VT_BSTR;
  }
  void operator()(const ObjectRef& value) const {
    target.pdispVal = dispatchOf(value);
    target.vt = VT_DISPATCH;
  }
  void operator()(const std::shared_ptr<const Array>& value) const {
    target.parray = toSafeArray(*value);
    target.vt = VT_ARRAY | VT_VARIANT;
  }

 private:
  VARIANT& target;
};

}  // namespace

void toVariant(const Value& value, VARIANT& variant) {
  using Alternatives = std::variant<std::monostate, Null, bool, std::int16_t, std::int32_t, double, std::string,
                                    ObjectRef, std::shared_ptr<const Array>>;
  std::visit(ToVariant(variant), static_cast<const Alternatives&>(value));
}

Value fromVariant(const VARIANT& variant) {
  if ((variant.vt & VT_ARRAY) != 0) return fromArrayVariant(variant);
  if ((variant.vt & VT_BYREF) != 0) return fromReference(variant);
  switch (variant.vt) {
    case VT_EMPTY:
      return {};
    case VT_NULL:
      return Null();
    case VT_BOOL:
      return variant.boolVal != VARIANT_FALSE;
    case VT_I2:
      return static_cast<std::int16_t>(variant.iVal);
    case VT_I1:
    case VT_UI1:
      return converted(variant, VT_I2);
    case VT_I4:
      return static_cast<std::int32_t>(variant.lVal);
    case VT_UI2:
    case VT_INT:
    case VT_UI4:
    case VT_UINT:
    case VT_I8:
    case VT_UI8:
      return wholeNumber(variant);
    case VT_R8:
      return variant.dblVal;
    case VT_R4:
    case VT_CY:
    case VT_DATE:
    case VT_DECIMAL:
      return converted(variant, VT_R8);
    case VT_BSTR:
      return utf8({variant.bstrVal == nullptr ? L"" : variant.bstrVal, SysStringLen(variant.bstrVal)});
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return fromUnknown(variant.punkVal);
    default:
      return opaque();
  }
}

}  // namespace nerida

#include "platform/win32/script_array.h"

#include <string>

#include "platform/error.h"
#include "platform/win32/late_binding.h"
#include "platform/win32/variant.h"

namespace nerida {
namespace {

// Longer ones are not lists of names but a hostile or broken object.
constexpr std::int32_t maximumLength = 32767;

Value element(IDispatch& object, const std::string& name) {
  Variant result;
  getMember(object, name, result);
  return fromVariant(result);
}

}  // namespace

std::shared_ptr<const Array> fromScriptArray(IDispatch& object) {
  if (!isScriptObject(object)) return nullptr;
  try {
    const std::int32_t length = toInt32(element(object, "length"));
    if (length < 0 || length > maximumLength) return nullptr;
    auto result = std::make_shared<Array>();
    for (std::int32_t i = 0; i < length; ++i) result->elements.push_back(element(object, std::to_string(i)));
    return result;
  } catch (const Error&) {
    return nullptr;  // without these members it is some other object
  }
}

}  // namespace nerida

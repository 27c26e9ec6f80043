#include "platform/win32/call_frame.h"

#include <algorithm>

#include "platform/win32/variant.h"

namespace nerida {
namespace {

bool hasTypedReference(VARTYPE type) {
  return type == VT_BOOL || type == VT_I2 || type == VT_I4 || type == VT_R8 || type == VT_BSTR;
}

}  // namespace

CallFrame::CallFrame(std::span<Argument> arguments) : source(arguments) {
  for (const Argument& argument : source) {
    toVariant(argument.variable != nullptr ? *argument.variable : argument.value, storage.emplace_back());
  }
}

VARIANT CallFrame::crossing(std::size_t index, ReferenceForm form) {
  Variant& stored = storage[index];
  if (source[index].variable == nullptr) return stored;
  VARIANT reference = {};
  if (form == ReferenceForm::typed && hasTypedReference(stored.vt)) {
    reference.vt = static_cast<VARTYPE>(VT_BYREF | stored.vt);
    reference.byref = &stored.llVal;  // all kinds of content start at the same place
  } else {
    reference.vt = VT_BYREF | VT_VARIANT;
    reference.pvarVal = &stored;
  }
  return reference;
}

std::span<VARIANT> CallFrame::arguments(ReferenceForm form) {
  reversed.clear();
  for (std::size_t i = source.size(); i-- > 0;) reversed.push_back(crossing(i, form));
  return reversed;
}

bool CallFrame::hasReferences() const {
  return std::ranges::any_of(source, [](const Argument& argument) { return argument.variable != nullptr; });
}

void CallFrame::writeBack() {
  for (std::size_t i = 0; i < source.size(); ++i) {
    if (source[i].variable != nullptr) *source[i].variable = fromVariant(storage[i]);
  }
}

}  // namespace nerida

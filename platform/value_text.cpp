#include "platform/value_text.h"

namespace nerida {
namespace {

struct Writer {
  std::string operator()(std::monostate) const { return "Empty"; }
  std::string operator()(Null) const { return "Null"; }
  std::string operator()(bool value) const { return value ? "True" : "False"; }
  std::string operator()(std::int16_t value) const { return std::to_string(value) + "%"; }
  std::string operator()(std::int32_t value) const { return std::to_string(value) + "&"; }
  std::string operator()(double value) const { return toText(value) + "#"; }
  std::string operator()(const std::string& value) const { return '"' + value + '"'; }
  std::string operator()(const ObjectRef&) const { return "Object"; }
  std::string operator()(const std::shared_ptr<const Array>&) const { return "Array"; }
};

}  // namespace

std::string written(const Value& value) { return std::visit(Writer{}, static_cast<const Value::variant&>(value)); }

}  // namespace nerida

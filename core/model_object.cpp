#include "core/model_object.h"

#include "core/trap.h"
#include "platform/error.h"

namespace nerida {
namespace {

using ArrayRef = std::shared_ptr<const Array>;

// A script array is an object whose elements are members named "0", "1", … beside its "length". Any other object is
// no array.
ArrayRef scriptArray(const ObjectRef& object) {
  auto array = std::make_shared<Array>();
  try {
    const std::int16_t length = toInt16(object->get("length"));
    for (std::int16_t i = 0; i < length; ++i) array->elements.push_back(object->get(std::to_string(i)));
  } catch (const Error&) {
    return nullptr;
  }
  return array;
}

ArrayRef asArray(const Value& value) {
  if (const auto* array = std::get_if<ArrayRef>(&value)) return *array;
  if (const auto* object = std::get_if<ObjectRef>(&value); object && *object) return scriptArray(*object);
  return nullptr;
}

std::vector<std::string> texts(const Array& array) {
  std::vector<std::string> names;
  names.reserve(array.elements.size());
  for (const Value& element : array.elements) names.push_back(toText(element));
  return names;
}

}  // namespace

ObjectRef ModelObject::object() const {
  if (!state.gModelObject) throw Error(error::objectNotSet);
  return state.gModelObject;
}

void ModelObject::call(const char* member, std::initializer_list<std::int16_t> steps) {
  std::vector<Argument> arguments;
  for (const std::int16_t step : steps) arguments.emplace_back(Value(step));
  object()->call(member, arguments);
}

void ModelObject::SetLightDirection(const LightDirection& direction) {
  std::array<Argument, 3> arguments{Argument(direction.x), Argument(direction.y), Argument(direction.z)};
  object()->call("SetLightDirection", arguments);
}

void ModelObject::SetOrientation(const std::array<std::int32_t, 3>& angles) {
  std::array<Value, 3> variables{Value(angles[0]), Value(angles[1]), Value(angles[2])};
  std::array<Argument, 3> arguments{Argument(&variables[0]), Argument(&variables[1]), Argument(&variables[2])};
  object()->call("SetOrientation", arguments);
}

std::optional<LightDirection> ModelObject::GetLightDirection() {
  std::array<Value, 3> variables{Value(std::int32_t{0}), Value(std::int32_t{0}), Value(std::int32_t{0})};
  std::array<Argument, 3> arguments{Argument(&variables[0]), Argument(&variables[1]), Argument(&variables[2])};
  std::optional<LightDirection> direction;
  ignoringErrors([&] {
    if (toInt32(object()->call("GetLightDirection", arguments)) != 0) return;
    direction = LightDirection{toInt32(variables[0]), toInt32(variables[1]), toInt32(variables[2])};
  });
  return direction;
}

std::vector<std::string> ModelObject::GetLookStyleList() {
  std::array<Value, 3> variables;
  std::array<Argument, 3> arguments{Argument(&variables[0]), Argument(&variables[1]), Argument(&variables[2])};
  const Value result = object()->call("GetLookStyleList", arguments);
  for (const Value& variable : variables) {
    if (const ArrayRef array = asArray(variable)) return texts(*array);
  }
  if (const ArrayRef array = asArray(result)) return texts(*array);
  throw Error(error::typeMismatch);
}

}  // namespace nerida

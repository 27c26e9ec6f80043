#include "host/library/placement.h"

namespace nerida::library {
namespace {

constexpr int mostCopies = 1000;

}  // namespace

Vec sizeOf(Fields& fields) {
  if (!fields.has("size")) return {1, 1, 1};
  if (fields.raw("size").is_array()) return fields.vec("size", {});
  const double all = fields.number("size");
  return {all, all, all};
}

std::vector<Transform> copiesOf(Fields& fields) {
  std::vector<Transform> copies{Transform{}};
  if (fields.has("repeat")) {
    Fields repeat(fields.raw("repeat"), "repeat");
    const int count = repeat.integer("count", 0);
    if (count < 1 || count > mostCopies) repeat.fail("\"count\" must be 1 to 1000");
    const Transform step =
        Transform::shift(repeat.vec("move", {})) * Transform::turn(quaternionOfTurn(repeat.vec("turn", {})));
    repeat.close();
    while (static_cast<int>(copies.size()) < count) copies.push_back(step * copies.back());
  }
  if (fields.has("mirror")) {
    const std::string axis = fields.text("mirror");
    if (axis != "x" && axis != "y" && axis != "z") fields.fail("\"mirror\" must be x, y or z");
    const Transform mirror =
        Transform::scale({axis == "x" ? -1.0 : 1.0, axis == "y" ? -1.0 : 1.0, axis == "z" ? -1.0 : 1.0});
    for (std::size_t i = 0, count = copies.size(); i < count; ++i) copies.push_back(mirror * copies[i]);
  }
  return copies;
}

}  // namespace nerida::library

#pragma once

#include <span>
#include <string>

#include "platform/value.h"

namespace nerida {

// One argument of a late-bound call. A reference is a variable that the object may fill: when it holds a number or a
// text on entry it crosses as a typed reference (a 32-bit integer as a reference to one), when it is empty it crosses
// as a reference to a variant.
struct Argument {
  Argument(Value value) : value(std::move(value)) {}  // NOLINT(google-explicit-constructor): call sites read as calls
  explicit Argument(Value* variable) : variable(variable) {}

  Value value;
  Value* variable = nullptr;
};

// An automation object reached by member name. The name is looked up at every use; nothing is cached.
// Errors: 438 when there is no such member, else whatever the object raised, translated to an error number.
class Object {
 public:
  virtual ~Object() = default;
  virtual Value get(const std::string& member) = 0;
  virtual void let(const std::string& member, const Value& value) = 0;
  virtual Value call(const std::string& member, std::span<Argument> arguments) = 0;
};

}  // namespace nerida

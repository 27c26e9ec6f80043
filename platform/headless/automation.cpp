#include "platform/headless/automation.h"

#include "platform/value_text.h"

namespace nerida::headless {
namespace {

std::string written(const Argument& argument) {
  return argument.variable ? "ByRef " + nerida::written(*argument.variable) : nerida::written(argument.value);
}

}  // namespace

void ScriptedObject::enter(const std::string& member, const std::string& line) {
  transcript.add("model: " + line);
  if (const auto hook = hooks.find(member); hook != hooks.end()) {
    const std::function<void()> action = hook->second;  // it may change the hooks
    action();
  }
  if (const auto failure = failures.find(member); failure != failures.end()) throw failure->second;
}

Value ScriptedObject::get(const std::string& member) {
  enter(member, member);
  const auto value = values.find(member);
  if (value == values.end()) throw Error(error::noSuchMember);
  return value->second;
}

void ScriptedObject::let(const std::string& member, const Value& value) {
  enter(member, member + " = " + nerida::written(value));
  const auto entry = values.find(member);
  if (entry == values.end()) throw Error(error::noSuchMember);
  entry->second = value;
}

Value ScriptedObject::call(const std::string& member, std::span<Argument> arguments) {
  std::string line = member;
  for (const Argument& argument : arguments) {
    line += (&argument == arguments.data() ? " " : ", ") + written(argument);
  }
  enter(member, line);
  const auto function = functions.find(member);
  if (function == functions.end()) throw Error(error::noSuchMember);
  return function->second ? function->second(arguments) : Value();
}

}  // namespace nerida::headless

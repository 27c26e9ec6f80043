#pragma once

#include <functional>
#include <map>
#include <string>

#include "platform/automation.h"
#include "platform/error.h"
#include "platform/headless/transcript.h"

namespace nerida::headless {

// An automation object made of a table of values and functions. A member that is in neither raises 438.
// Accesses are written to the transcript as a program would write them: "MoveY 1%", "ModelName", "LightIsOn = True"
// (% marks a 16-bit number, & a 32-bit one, ByRef a variable).
class ScriptedObject : public Object {
 public:
  using Function = std::function<Value(std::span<Argument>)>;

  explicit ScriptedObject(Transcript& transcript) : transcript(transcript) {}

  Value get(const std::string& member) override;
  void let(const std::string& member, const Value& value) override;
  Value call(const std::string& member, std::span<Argument> arguments) override;

  std::map<std::string, Value> values;        // get and let
  std::map<std::string, Function> functions;  // call
  // Members that raise at every use, and what they raise.
  std::map<std::string, Error> failures;
  // Runs before a member does its work, as an object may do anything inside a call.
  std::map<std::string, std::function<void()>> hooks;

 private:
  void enter(const std::string& member, const std::string& line);

  Transcript& transcript;
};

}  // namespace nerida::headless

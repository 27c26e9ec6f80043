#pragma once

#include <span>
#include <string>

#include "platform/automation.h"

namespace nerida {

class Error;

// What a trace says of values: always on one line. A text stands in quotes with the escapes \n \r \t \" \\ and \xNN,
// and is cut after 200 characters, an array after 50 elements; what is missing is counted behind it.
std::string traceText(const Value& value);
// "(1%, ByRef Empty)"
std::string traceText(std::span<const Argument> arguments);
// What the variables among the arguments hold now: " leaving 50&, -50&, 100&", or nothing without any.
std::string traceVariables(std::span<const Argument> arguments);
// error 438: "Object doesn't support this property or method"
std::string traceError(const Error& failure);

}  // namespace nerida

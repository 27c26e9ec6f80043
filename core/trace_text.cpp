#include "core/trace_text.h"

#include "platform/error.h"
#include "platform/value_text.h"

namespace nerida {
namespace {

constexpr std::size_t longestText = 200;  // characters
constexpr std::size_t longestArray = 50;  // elements

bool continuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

void addEscaped(std::string& line, char byte) {
  constexpr const char* digits = "0123456789abcdef";
  const auto code = static_cast<unsigned char>(byte);
  switch (byte) {
    case '\n':
      line += "\\n";
      break;
    case '\r':
      line += "\\r";
      break;
    case '\t':
      line += "\\t";
      break;
    case '"':
    case '\\':
      line += {'\\', byte};
      break;
    default:
      if (code < 0x20U || code == 0x7FU) {
        line += {'\\', 'x', digits[code >> 4U], digits[code & 0xFU]};
      } else {
        line += byte;
      }
  }
}

std::string quoted(const std::string& text) {
  std::string line = "\"";
  std::size_t characters = 0;
  for (const char byte : text) {
    if (!continuesCharacter(byte)) ++characters;
    if (characters <= longestText) addEscaped(line, byte);
  }
  line += '"';
  if (characters > longestText) line += " and " + std::to_string(characters - longestText) + " more";
  return line;
}

std::string elements(const Array& array) {
  std::string line = "Array(";
  const std::size_t count = array.elements.size();
  for (std::size_t i = 0; i < count && i < longestArray; ++i) {
    if (i > 0) line += ", ";
    line += traceText(array.elements[i]);
  }
  line += ')';
  if (count > longestArray) line += " and " + std::to_string(count - longestArray) + " more";
  return line;
}

std::string argumentText(const Argument& argument) {
  return argument.variable != nullptr ? "ByRef " + traceText(*argument.variable) : traceText(argument.value);
}

}  // namespace

std::string traceText(const Value& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return quoted(*text);
  if (const auto* array = std::get_if<std::shared_ptr<const Array>>(&value); array && *array) return elements(**array);
  if (const auto* object = std::get_if<ObjectRef>(&value); object && !*object) return "Nothing";
  return written(value);
}

std::string traceText(std::span<const Argument> arguments) {
  std::string line = "(";
  for (const Argument& argument : arguments) {
    if (&argument != arguments.data()) line += ", ";
    line += argumentText(argument);
  }
  return line + ')';
}

std::string traceVariables(std::span<const Argument> arguments) {
  std::string line;
  for (const Argument& argument : arguments) {
    if (argument.variable == nullptr) continue;
    line += line.empty() ? " leaving " : ", ";
    line += traceText(*argument.variable);
  }
  return line;
}

std::string traceError(const Error& failure) {
  const std::string description = quoted(failure.description);
  return "error " + std::to_string(failure.number) + ": " + description;
}

}  // namespace nerida

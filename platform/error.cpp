#include "platform/error.h"

namespace nerida {

std::string standardErrorText(std::int32_t number) {
  struct Row {
    std::int32_t number;
    const char* text;
  };
  static constexpr Row rows[] = {
      {error::invalidCall, "Invalid procedure call or argument"},
      {error::overflow, "Overflow"},
      {error::outOfMemory, "Out of memory"},
      {error::subscriptOutOfRange, "Subscript out of range"},
      {error::typeMismatch, "Type mismatch"},
      {error::outOfStackSpace, "Out of stack space"},
      {error::fileNotFound, "File not found"},
      {error::objectNotSet, "Object variable or With block variable not set"},
      {error::cannotCreateObject, "ActiveX component can't create object"},
      {error::noInterface, "Class does not support Automation or does not support expected interface"},
      {error::noSuchMember, "Object doesn't support this property or method"},
      {error::notImplemented, "Object doesn't support this action"},
      {error::argumentNotOptional, "Argument not optional"},
      {error::wrongArgumentCount, "Wrong number of arguments or invalid property assignment"},
  };
  for (const Row& row : rows) {
    if (row.number == number) return row.text;
  }
  return "Automation error";
}

}  // namespace nerida

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
      {11, "Division by zero"},
      {error::typeMismatch, "Type mismatch"},
      {error::outOfStackSpace, "Out of stack space"},
      {51, "Internal error"},
      {error::badFileName, "Bad file name or number"},
      {error::fileNotFound, "File not found"},
      {57, "Device I/O error"},
      {error::deviceUnavailable, "Device unavailable"},
      {70, "Permission denied"},
      {error::diskNotReady, "Disk not ready"},
      {75, "Path/File access error"},
      {76, "Path not found"},
      {error::objectNotSet, "Object variable or With block variable not set"},
      {94, "Invalid use of Null"},
      {error::noSuchElement, "Control array element doesn't exist"},
      {error::alreadyLoaded, "Object already loaded"},
      {380, "Invalid property value"},
      {381, "Invalid property array index"},
      {383, "Set not supported (read-only property)"},
      {394, "Get not supported (write-only property)"},
      {424, "Object required"},
      {error::cannotCreateObject, "ActiveX component can't create object"},
      {error::noInterface, "Class does not support Automation or does not support expected interface"},
      {error::noSuchMember, "Object doesn't support this property or method"},
      {error::notImplemented, "Object doesn't support this action"},
      {error::argumentNotOptional, "Argument not optional"},
      {error::wrongArgumentCount, "Wrong number of arguments or invalid property assignment"},
      {error::invalidPicture, "Invalid picture"},
  };
  for (const Row& row : rows) {
    if (row.number == number) return row.text;
  }
  const bool isOwn = number > 0 && number <= 0xFFFF;
  return isOwn ? "Application-defined or object-defined error" : "Automation error";
}

}  // namespace nerida

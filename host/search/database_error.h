#pragma once

#include <stdexcept>
#include <string>

namespace nerida::search {

enum class DatabaseFault {
  missing,  ///< there is no such file
  foreign,  ///< it is no model database, or one of a newer version
  damaged,
  busy,  ///< another program kept it locked for longer than we wait
  memory,
  other,
};

/// What is wrong, for people: the beginning of a sentence that goes on with the file.
constexpr const char* describe(DatabaseFault fault) {
  switch (fault) {
    case DatabaseFault::missing:
      return "The model database is missing";
    case DatabaseFault::foreign:
      return "This is no model database";
    case DatabaseFault::damaged:
      return "The model database is damaged";
    case DatabaseFault::busy:
      return "The model database is in use by another program";
    case DatabaseFault::memory:
      return "There is not enough memory for the model database";
    case DatabaseFault::other:
      break;
  }
  return "The model database cannot be used";
}

/// The database cannot be read or written; the text says which and why.
class DatabaseError : public std::runtime_error {
 public:
  DatabaseError(DatabaseFault fault, const std::string& text) : std::runtime_error(text), fault(fault) {}

  DatabaseFault fault;
};

}  // namespace nerida::search

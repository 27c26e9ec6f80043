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

/// The database cannot be read or written; the text says which and why.
class DatabaseError : public std::runtime_error {
 public:
  DatabaseError(DatabaseFault fault, const std::string& text) : std::runtime_error(text), fault(fault) {}

  DatabaseFault fault;
};

}  // namespace nerida::search

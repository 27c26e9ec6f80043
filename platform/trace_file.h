#pragma once

#include <string_view>

namespace nerida {

// Where a trace goes. Never fails: what cannot be written is lost, and the library goes on as if nothing were.
class TraceFile {
 public:
  virtual ~TraceFile() = default;
  // UTF-8, added at the end. It is in the file when the call returns, whatever becomes of the process afterwards.
  virtual void append(std::string_view text) noexcept = 0;
};

}  // namespace nerida

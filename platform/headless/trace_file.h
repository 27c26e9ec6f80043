#pragma once

#include <memory>
#include <string>

#include "platform/trace_file.h"

namespace nerida::headless {

// A file in memory, which its reader keeps.
class MemoryTraceFile : public TraceFile {
 public:
  explicit MemoryTraceFile(std::shared_ptr<std::string> contents) : contents(std::move(contents)) {}
  void append(std::string_view text) noexcept override { *contents += text; }

 private:
  std::shared_ptr<std::string> contents;
};

}  // namespace nerida::headless

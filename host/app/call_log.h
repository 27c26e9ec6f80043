#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "host/win32/automation.h"

namespace nerida::host {

/// What is told about every use of the object.
class CallListener {
 public:
  virtual ~CallListener() = default;
  virtual void called(const CallRecord& record) = 0;
};

/// A call as one line: `RotateX(2:I2)`, `let IsToolbarShowing = True`, `get ModelName -> "Windmill"`.
std::string lineOf(const CallRecord& record);

/// A value the way it is written in such a line, without its type.
std::string writtenValue(const VARIANT& value);

/// A file with one line for each call, written at once so that it can be followed.
class CallLog {
 public:
  /// Throws std::runtime_error when the file cannot be written.
  explicit CallLog(const std::filesystem::path& file);
  void write(const CallRecord& record);

 private:
  struct Close {
    void operator()(std::FILE* open) const { std::fclose(open); }
  };
  std::unique_ptr<std::FILE, Close> file;
};

}  // namespace nerida::host

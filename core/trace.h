#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

#include "platform/automation.h"
#include "platform/trace_file.h"

namespace nerida {

class Error;

// A record of what crosses the library's border, for developers of hosts: the calls of the control and the accesses to
// the model. Every call is one line,
//
//     milliseconds  call -> result
//
// begun when the call begins and completed when it returns, so that the last line of a process that hangs or crashes
// names the call that did not come back. Calls that are made inside another one are indented below it; the outer one's
// result follows on a line of its own. No method fails.
class Trace {
 public:
  using Clock = std::function<std::int64_t()>;  // milliseconds, counted from anywhere

  // The clock's time from now on is what the lines begin with.
  Trace(std::unique_ptr<TraceFile> file, Clock clock);

  // A line of its own.
  void note(const std::string& text) noexcept;

 private:
  friend class TracedCall;
  void begin(const std::string& subject, const std::string& details);
  void end(const std::string& subject, const std::string& result);
  void startLine(int indent, const std::string& text);
  void breakLine();

  std::unique_ptr<TraceFile> file;
  Clock clock;
  std::int64_t start;
  int depth = 0;
  bool lineIsOpen = false;  // the innermost call's line waits for its result
};

// One call, from its construction to its destruction, in the trace. Without a trace it does nothing.
class TracedCall {
 public:
  // The subject names the call, the details follow it and are not repeated.
  TracedCall(std::shared_ptr<Trace> trace, std::string subject, const std::string& details = {}) noexcept;
  ~TracedCall();
  TracedCall(const TracedCall&) = delete;
  TracedCall& operator=(const TracedCall&) = delete;

  // What came of it; "done" when nothing else is said.
  void returned(const Value& result, std::span<const Argument> variables = {}) noexcept;
  void failed(const Error& failure) noexcept;

 private:
  std::shared_ptr<Trace> trace;
  std::string subject;
  std::string result;
};

}  // namespace nerida

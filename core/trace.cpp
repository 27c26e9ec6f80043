#include "core/trace.h"

#include "core/trace_text.h"
#include "platform/error.h"

namespace nerida {
namespace {

constexpr std::size_t timeWidth = 8;

// A trace must not change what it watches, not even where there is no memory left for it.
template <class Body>
void quietly(Body&& body) noexcept {
  try {
    body();
  } catch (...) {  // NOLINT(bugprone-empty-catch): see above
  }
}

}  // namespace

Trace::Trace(std::unique_ptr<TraceFile> file, Clock clock)
    : file(std::move(file)), clock(std::move(clock)), start(this->clock()) {}

void Trace::note(const std::string& text) noexcept {
  quietly([&] {
    startLine(depth, text);
    breakLine();
  });
}

void Trace::begin(const std::string& subject, const std::string& details) {
  const int outer = depth++;  // even if no line comes about: the end takes it back
  startLine(outer, subject + details + " ->");
}

// An open line can only be that of the call that ends: those inside it have completed theirs.
void Trace::end(const std::string& subject, const std::string& result) {
  --depth;
  if (!lineIsOpen) startLine(depth, subject + " ->");
  file->append(' ' + result);
  breakLine();
}

void Trace::startLine(int indent, const std::string& text) {
  breakLine();
  std::string line = std::to_string(clock() - start);
  line.insert(0, line.size() < timeWidth ? timeWidth - line.size() : 0, ' ');
  line.append(2 + 2 * static_cast<std::size_t>(indent), ' ');
  file->append(line + text);
  lineIsOpen = true;
}

void Trace::breakLine() {
  if (lineIsOpen) file->append("\r\n");
  lineIsOpen = false;
}

TracedCall::TracedCall(std::shared_ptr<Trace> trace, std::string subject, const std::string& details) noexcept
    : trace(std::move(trace)), subject(std::move(subject)) {
  if (!this->trace) return;
  quietly([&] { this->trace->begin(this->subject, details); });
}

TracedCall::~TracedCall() {
  if (!trace) return;
  quietly([&] { trace->end(subject, result.empty() ? "done" : result); });
}

void TracedCall::returned(const Value& value, std::span<const Argument> variables) noexcept {
  quietly([&] { result = traceText(value) + traceVariables(variables); });
}

void TracedCall::failed(const Error& failure) noexcept {
  quietly([&] { result = traceError(failure); });
}

}  // namespace nerida

#pragma once

#include <memory>
#include <string>

#include "platform/settings.h"
#include "platform/trace_file.h"

namespace nerida {

// Opens the file that the environment variable NERIDA_TRACE names, or else the user's setting "File" in the section
// "Trace". When that is a folder, it is a file of this process's own in it. Null when none is named or it cannot be
// opened; it belongs to one process at a time.
std::unique_ptr<TraceFile> openTraceFile(Settings& settings);

// Who writes the trace: the time, the process, its width and its program, for the line that a trace starts with.
std::string traceHeading();

}  // namespace nerida

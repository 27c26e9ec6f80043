#include "activex/process_library.h"

#include <chrono>
#include <mutex>

#include "activex/border.h"
#include "platform/win32/desktop.h"
#include "platform/win32/files.h"
#include "platform/win32/prompts.h"
#include "platform/win32/registry.h"
#include "platform/win32/search_component.h"
#include "platform/win32/settings.h"
#include "platform/win32/shell.h"
#include "platform/win32/trace_file.h"
#include "platform/win32/window.h"

namespace nerida {
namespace {

std::int64_t milliseconds() {
  using namespace std::chrono;
  return duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch()).count();
}

// Null unless somebody asked for a trace and it can be written.
std::shared_ptr<Trace> startTrace(Settings& settings) {
  std::unique_ptr<TraceFile> file = openTraceFile(settings);
  if (!file) return nullptr;
  auto trace = std::make_shared<Trace>(std::move(file), milliseconds);
  trace->note(traceHeading());
  return trace;
}

// The members' order is the order of their making: the library over the services.
struct ProcessLibrary {
  SystemDesktop desktop;
  SystemWindowFactory windows;
  SystemPrompts prompts;
  SystemRegistry registry;
  SystemSettings settings;
  SystemShell shell;
  SystemFiles files;
  SystemSearchComponents searchComponents;
  Library library{{desktop, windows, prompts, registry, settings, shell, files, searchComponents}};
  std::shared_ptr<Trace> trace;  // while controls live
};

// Not an object with a destructor of its own: at the end of the process the system has already taken the windows and
// the other modules away.
ProcessLibrary* instance = nullptr;

std::mutex mutex;
int holds = 0;
DWORD holder = 0;  // the thread of the holds

}  // namespace

LibraryHold::LibraryHold() {
  const std::scoped_lock lock(mutex);
  const DWORD thread = GetCurrentThreadId();
  if (holds > 0 && holder != thread) throw Refusal{RPC_E_WRONG_THREAD};
  if (instance == nullptr) instance = new ProcessLibrary();
  if (holds == 0) instance->trace = startTrace(instance->settings);
  holder = thread;
  ++holds;
}

LibraryHold::~LibraryHold() {
  const std::scoped_lock lock(mutex);
  if (--holds == 0) instance->trace.reset();
}

Library& LibraryHold::library() const { return instance->library; }

std::shared_ptr<Trace> LibraryHold::trace() const { return instance->trace; }

void dropProcessLibrary() {
  delete instance;
  instance = nullptr;
}

}  // namespace nerida

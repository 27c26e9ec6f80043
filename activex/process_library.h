#pragma once

#include <memory>

#include "control/library.h"
#include "core/trace.h"

namespace nerida {

// A control's hold on the process's one library over the system's services, which is put together at the first use.
// The library's windows belong to the thread that made them, so while one thread's controls hold it, those of another
// are refused (RPC_E_WRONG_THREAD is thrown).
class LibraryHold {
 public:
  LibraryHold();
  ~LibraryHold();
  LibraryHold(const LibraryHold&) = delete;
  LibraryHold& operator=(const LibraryHold&) = delete;
  Library& library() const;
  // Null when nobody asked for one. Whether one is wanted is found out for the first of several controls.
  std::shared_ptr<Trace> trace() const;
};

// Gives it up, when the module goes and the process stays.
void dropProcessLibrary();

}  // namespace nerida

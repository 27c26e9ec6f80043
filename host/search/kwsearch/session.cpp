#include "host/search/kwsearch/session.h"

#include <windows.h>

namespace nerida::search {
namespace {

DWORD slot = TLS_OUT_OF_INDEXES;

Session* current() { return static_cast<Session*>(TlsGetValue(slot)); }

}  // namespace

Session& session() {
  if (current() == nullptr) {
    auto made = std::make_unique<Session>();
    if (TlsSetValue(slot, made.get()) == FALSE) throw std::bad_alloc();
    static_cast<void>(made.release());  // the slot keeps it
  }
  return *current();
}

void endSession() {
  delete current();
  TlsSetValue(slot, nullptr);
}

}  // namespace nerida::search

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void* processEnds) {
  using namespace nerida::search;
  if (reason == DLL_PROCESS_ATTACH) {
    slot = TlsAlloc();
    return slot != TLS_OUT_OF_INDEXES ? TRUE : FALSE;
  }
  if (reason == DLL_THREAD_DETACH) endSession();
  // At a process's end the system takes everything back by itself.
  if (reason == DLL_PROCESS_DETACH && processEnds == nullptr) {
    endSession();
    TlsFree(slot);
  }
  return TRUE;
}

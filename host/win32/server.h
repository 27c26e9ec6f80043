#pragma once

#include <atomic>
#include <span>

#include "host/win32/com.h"

namespace nerida::host {

/// An interface whose type library lies in the server's module, as its resource 1. The texts last as long as the
/// program.
struct ServerInterface {
  GUID id;
  const wchar_t* name;
  GUID library;  ///< of version 1.0
  const wchar_t* libraryTitle;
};

/// A class that an in-process server offers. The texts last as long as the program.
struct ServerClass {
  GUID id;
  const wchar_t* name;       ///< the version-independent name of the class
  const wchar_t* versioned;  ///< the same with its version
  const wchar_t* title;      ///< for people
  bool isControl;            ///< containers may offer it
  /// The new object's one reference goes to the caller. May throw.
  IUnknown* (*create)();
  const ServerInterface* dual = nullptr;  ///< registered along with the class
};

/// Each server defines this.
std::span<const ServerClass> serverClasses();

/// The module may be unloaded while this is 0.
extern std::atomic<long> moduleUses;

/// A member of every object of a server: the module stays loaded as long as the object lives.
class ModuleUse {
 public:
  ModuleUse() { ++moduleUses; }
  ~ModuleUse() { --moduleUses; }
  ModuleUse(const ModuleUse&) = delete;
  ModuleUse& operator=(const ModuleUse&) = delete;
};

HINSTANCE thisModule();
std::wstring modulePath();

/// Runs the body of a COM method: no exception leaves it. The body gives the result.
template <typename Body>
HRESULT guarded(Body body) noexcept {
  try {
    return body();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_FAIL;
  }
}

/// Writes, or takes back, what the system must know of the classes: for all users or for the current one. Taking back
/// removes exactly what was written.
HRESULT registerClasses(HKEY root);
HRESULT unregisterClasses(HKEY root);

}  // namespace nerida::host

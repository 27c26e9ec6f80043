// Puts the registry in order for a client that cannot do it itself: installation_tool install|remove CONTROL

#include <cstring>
#include <memory>

#include "tests/windows/com/installation.h"
#include "tests/windows/com/module_file.h"

int main(int count, char** arguments) {
  if (count != 3) return 2;
  CoInitialize(nullptr);
  const nerida::ControlModule module;
  if (std::strcmp(arguments[1], "install") != 0) {
    const nerida::Installation gone;
    return FAILED(module.call("DllUnregisterServer"));
  }
  static_cast<void>(std::make_unique<nerida::Installation>().release());  // stays, until "remove"
  return FAILED(module.call("DllRegisterServer"));
}

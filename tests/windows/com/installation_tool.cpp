// Puts the registry in order for a client that cannot do it itself: installation_tool install|remove CONTROL

#include <cstring>

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
  [[maybe_unused]] static const auto* const staysUntilRemoved = new nerida::Installation();
  return FAILED(module.call("DllRegisterServer"));
}

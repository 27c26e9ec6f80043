#pragma once

#include <windows.h>

namespace nerida {

enum class Scope { machine, user };

// Writes the control and its type library into the registry; what was written is taken back after a failure.
HRESULT registerServer(Scope scope);

// Removes exactly what registerServer wrote, and nothing of a registration of the other bitness. Fails when the class
// is still registered afterwards, as it is where the registry may not be written.
HRESULT unregisterServer(Scope scope);

}  // namespace nerida

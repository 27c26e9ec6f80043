#pragma once

#include "core/messages.h"
#include "core/paths.h"
#include "platform/registry.h"

namespace nerida {

// Reads the installation paths from the machine's registry, starting from empty ones. A key that is missing ends the
// reading after a message; what was read so far stays. Never fails.
void ReadInstallationPaths(Paths& paths, Registry& registry, Messages& messages);

}  // namespace nerida

#pragma once

#include "control/library.h"

namespace nerida {

// The process's one library over the system's services, put together at the first use.
Library& processLibrary();

// Gives it up, when the module goes and the process stays.
void dropProcessLibrary();

}  // namespace nerida

#pragma once

#include <memory>

#include "platform/platform.h"

namespace nerida {

// The library put together: its state, its paths and colours, and the single instance of every form, over one
// platform side. Outlives every control.
struct Library;

std::unique_ptr<Library, void (*)(Library*)> makeLibrary(const Platform& platform);

}  // namespace nerida

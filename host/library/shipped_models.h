#pragma once

#include <filesystem>

#include "host/library/library_editor.h"

namespace nerida::library {

/// Puts the models of the library in `shipped` in place of those that the last call brought; an empty path brings none.
/// Models that people have added stay as they are, also when a new one has their number. Index and database follow, and
/// a library without any model left is taken away whole. Interrupted, it is made good by calling it again. Throws
/// LibraryError.
void replaceShippedModels(const LibraryPlaces& places, const std::filesystem::path& shipped);

}  // namespace nerida::library

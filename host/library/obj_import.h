#pragma once

#include <filesystem>

#include "host/library/model.h"

namespace nerida::library {

/// Reads an OBJ file with the materials and the PNG or JPEG pictures that it names; those that cannot be found are left
/// out, and said in `remarks`. Throws LibraryError.
BuiltModel importObj(const std::filesystem::path& file, std::vector<std::string>& remarks);

}  // namespace nerida::library

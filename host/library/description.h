#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>

#include "host/library/model.h"

namespace nerida::library {

/// Builds the model that a description describes, centred and scaled into the unit sphere. Throws LibraryError.
BuiltModel buildModel(const nlohmann::json& description, const std::string& where);

/// The same from a file.
BuiltModel buildModelFile(const std::filesystem::path& file);

}  // namespace nerida::library

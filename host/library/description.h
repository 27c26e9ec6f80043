#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>

#include "host/library/model.h"
#include "host/library/recipe.h"

namespace nerida::library {

/// Builds the model that a description describes, centred and scaled into the unit sphere. Throws LibraryError.
BuiltModel buildModel(const nlohmann::json& description, const std::string& where);

/// The same from a recipe.
BuiltModel buildModelFile(const std::filesystem::path& file, const Shared& shared);

/// What the recipes of a folder share: the file "shared.recipe" in it, which may be missing.
Shared readSharedFile(const std::filesystem::path& folder);

}  // namespace nerida::library

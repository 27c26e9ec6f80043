#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "host/scene/model.h"

namespace nerida::library {

/// The JSON part of a binary glTF file that could be loaded.
nlohmann::json descriptionOf(const std::string& bytes);

/// A binary glTF file with one more node around its scene, so that the model fills the unit sphere. A file that does so
/// already is given back as it is. The bytes must be those of a file that could be loaded.
std::string fittedGlb(const std::string& bytes, const Model::Extent& extent);

}  // namespace nerida::library

#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace nerida::library {

/// What all recipes of a folder may use: colours and definitions, as a recipe without a model gives them.
struct Shared {
  nlohmann::json colors = nlohmann::json::object();       ///< name -> material
  nlohmann::json definitions = nlohmann::json::object();  ///< name -> list of parts
};

/// Reads a text of colours and definitions only. Throws LibraryError.
Shared readShared(const std::string& text, const std::string& where);

/// Reads a recipe, the compact language in which models are written, into the description that buildModel() takes.
/// `where` leads every error text. Throws LibraryError.
nlohmann::json readRecipe(const std::string& text, const std::string& where, const Shared& shared);

}  // namespace nerida::library

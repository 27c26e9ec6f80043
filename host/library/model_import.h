#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace nerida::library {

/// A model of somebody else's, ready for the library.
struct ImportedModel {
  std::string bytes;  ///< a binary glTF file that fills the unit sphere
  bool animated = false;
  std::size_t triangles = 0;
  std::vector<std::string> remarks;  ///< what could not be taken over, one sentence each
};

/// Reads a binary glTF 2.0 or an OBJ file. Throws LibraryError with the reason when the host could not show it.
ImportedModel importModel(const std::filesystem::path& file);

}  // namespace nerida::library

#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "host/library/index_file.h"

namespace nerida::library {

/// Builds a model file for every description (*.model, at any depth) in `descriptions`
/// below `target`, and the index. Files that are
/// right already are not written again; model files of other numbers stay. `progress` hears one line for each model.
/// Throws LibraryError; then the index is as it was.
void buildLibrary(const std::filesystem::path& descriptions, const std::filesystem::path& target,
                  const std::function<void(const std::string&)>& progress);

/// Everything that is wrong with a library, one sentence each: unreadable, missing and surplus model files.
std::vector<std::string> checkLibrary(const std::filesystem::path& library);

}  // namespace nerida::library

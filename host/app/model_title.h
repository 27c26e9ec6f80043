#pragma once

#include <filesystem>
#include <string>

namespace nerida::host {

/// What a model's library calls it: a library keeps an index of its models' numbers and names in its root folder.
/// Empty for a file that belongs to no library.
std::string findModelTitle(const std::filesystem::path& model);

}  // namespace nerida::host

#pragma once

#include <filesystem>
#include <string>

namespace nerida::library {

/// What is wrong with a model file, in one sentence; empty when nothing is.
std::string whatIsWrongWith(const std::filesystem::path& file);

}  // namespace nerida::library

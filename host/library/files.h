#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace nerida::library {

/// A file's bytes; nothing when it cannot be read.
std::optional<std::string> readWhole(const std::filesystem::path& file);

/// Replaces a file's content in one step, or leaves it alone when the content is the same. Throws LibraryError.
void writeFile(const std::filesystem::path& file, const std::string& bytes);

}  // namespace nerida::library

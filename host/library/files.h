#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace nerida::library {

/// A file's bytes; nothing when it cannot be read.
std::optional<std::string> readWhole(const std::filesystem::path& file);

/// Replaces a file's content in one step, or leaves it alone when the content is the same. Throws LibraryError.
void writeFile(const std::filesystem::path& file, const std::string& bytes);

/// Removes a model's file from a library, also a half-written one, and the folders that are empty without it.
void removeModelFile(const std::filesystem::path& library, std::int32_t number);

}  // namespace nerida::library

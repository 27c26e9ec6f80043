#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "host/library/model.h"

namespace nerida::library {

/// The plain index at a library's root, one model per line in order of numbers, tab-separated:
/// number, name, category, sub-category, "animated" or "still", keywords separated by commas.
inline constexpr const char* indexFileName = "index.txt";

/// The line of a model, with its end.
std::string indexLine(const ModelCard& card);

/// The card of a line, with or without its end. Throws LibraryError.
ModelCard cardOfIndexLine(const std::string& line);

/// The cards of the index, by number. A last line without an end was interrupted while it was written and does not
/// count. Throws LibraryError.
std::vector<ModelCard> readIndex(const std::filesystem::path& library);

/// Replaces the whole index. Throws LibraryError.
void writeIndex(const std::filesystem::path& library, std::vector<ModelCard> cards);

/// The highest number of the index; -1 = it is empty or missing. Reads only the end. Throws LibraryError.
std::int32_t lastNumberOf(const std::filesystem::path& library);

/// Adds a line at its place. A number higher than all others costs the same in a library of any size.
void addToIndex(const std::filesystem::path& library, const ModelCard& card);

}  // namespace nerida::library

#pragma once

#include <filesystem>
#include <vector>

namespace nerida::library {

/// Runs one command of the tool; `programFolder` holds a library unless the command names another one. Prints what it
/// does; returns the exit code. Throws LibraryError.
int runCommand(const std::vector<std::filesystem::path>& words, const std::filesystem::path& programFolder);

}  // namespace nerida::library

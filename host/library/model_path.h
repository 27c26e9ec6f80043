#pragma once

#include <cstdint>
#include <filesystem>

namespace nerida::library {

/// Where model `number` lies below the library's root: folders by thousands, hundreds and half-decades, then the file.
/// The folders' numbers have at least four digits, the file's has none to spare.
std::filesystem::path modelPath(std::int32_t number);

}  // namespace nerida::library

#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace nerida {

using Bytes = std::span<const std::uint8_t>;

// Little-endian numbers at an offset; nothing beyond the end.
std::optional<std::uint16_t> read16(Bytes bytes, std::size_t offset);
std::optional<std::uint32_t> read32(Bytes bytes, std::size_t offset);

// A bitmap in a compiled resource file: its name in capitals ("#7" for a numbered one) and where its data lies.
struct ResourceEntry {
  std::string name;
  std::size_t offset;
  std::size_t size;
};

// Lists the bitmaps of a compiled resource file. A file of another kind has none; a damaged one those before the
// damage.
std::vector<ResourceEntry> listBitmaps(Bytes file);

}  // namespace nerida

#include "platform/resource_directory.h"

#include <algorithm>
#include <array>

namespace nerida {
namespace {

constexpr std::size_t smallestHeader = 32;
constexpr std::size_t longestName = 256;
constexpr const char* bitmapType = "#2";

// Every compiled resource file starts with an empty entry; 16-bit formats do not.
bool startsLikeResources(Bytes file) {
  static constexpr std::array<std::uint8_t, 16> start = {0, 0, 0, 0, 32, 0, 0, 0, 255, 255, 0, 0, 255, 255, 0, 0};
  return file.size() >= smallestHeader && std::equal(start.begin(), start.end(), file.begin());
}

constexpr std::size_t aligned(std::size_t offset) { return (offset + 3) & ~std::size_t{3}; }

char capital(std::uint16_t unit) {
  if (unit >= 'a' && unit <= 'z') return static_cast<char>(unit - 'a' + 'A');
  return unit < 128 ? static_cast<char>(unit) : '?';
}

// A type or a name: a number after a mark, or text ending in a zero. Moves the offset behind it.
std::optional<std::string> readIdentifier(Bytes file, std::size_t& offset) {
  const auto first = read16(file, offset);
  if (!first) return std::nullopt;
  if (*first == 0xFFFF) {
    const auto number = read16(file, offset + 2);
    if (!number) return std::nullopt;
    offset += 4;
    return "#" + std::to_string(*number);
  }
  std::string text;
  while (text.size() <= longestName) {
    const auto unit = read16(file, offset);
    if (!unit) return std::nullopt;
    offset += 2;
    if (*unit == 0) return text;
    text += capital(*unit);
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::uint16_t> read16(Bytes bytes, std::size_t offset) {
  if (bytes.size() < 2 || offset > bytes.size() - 2) return std::nullopt;
  return static_cast<std::uint16_t>(bytes[offset] | bytes[offset + 1] << 8);
}

std::optional<std::uint32_t> read32(Bytes bytes, std::size_t offset) {
  const auto low = read16(bytes, offset);
  const auto high = read16(bytes, offset + 2);
  if (!low || !high) return std::nullopt;
  return *low | static_cast<std::uint32_t>(*high) << 16;
}

std::vector<ResourceEntry> listBitmaps(Bytes file) {
  std::vector<ResourceEntry> entries;
  if (!startsLikeResources(file)) return entries;
  std::size_t start = smallestHeader;
  while (start < file.size()) {
    const auto dataSize = read32(file, start);
    const auto headerSize = read32(file, start + 4);
    if (!dataSize || !headerSize || *headerSize < smallestHeader - 8) break;
    if (*headerSize > file.size() - start || *dataSize > file.size() - start - *headerSize) break;
    std::size_t offset = start + 8;
    const auto type = readIdentifier(file, offset);
    const auto name = type ? readIdentifier(file, offset) : std::nullopt;
    if (!name || offset > start + *headerSize) break;
    if (*type == bitmapType) entries.push_back({*name, start + *headerSize, *dataSize});
    start = aligned(start + *headerSize + *dataSize);
  }
  return entries;
}

}  // namespace nerida

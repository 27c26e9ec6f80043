#include "host/search/spelling.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <vector>

namespace nerida::search {
namespace {

std::size_t following(unsigned char lead) {
  const int ones = std::countl_one(lead);
  return ones >= 2 && ones <= 4 ? static_cast<std::size_t>(ones) - 1 : 0;
}

bool continues(std::string_view text, std::size_t start, std::size_t count) {
  if (start + count >= text.size()) return false;
  return std::ranges::all_of(text.substr(start + 1, count),
                             [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; });
}

/// One bit for each letter, or for several that are rarely in one word.
std::uint64_t lettersOf(std::u32string_view word) {
  std::uint64_t letters = 0;
  for (const char32_t letter : word) letters |= std::uint64_t{1} << (letter % 64);
  return letters;
}

/// Most words have quite other letters than the one that is looked for; a slip changes two of them at most. This is
/// told much sooner than how they differ.
bool lettersDiffer(std::u32string_view one, std::u32string_view other, std::size_t limit) {
  return static_cast<std::size_t>(std::popcount(lettersOf(one) ^ lettersOf(other))) > 2 * limit;
}

}  // namespace

void takeCharacters(std::string_view text, std::u32string& characters) {
  characters.clear();
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto lead = static_cast<unsigned char>(text[i]);
    const std::size_t count = following(lead);
    char32_t character = lead;
    if (count > 0 && continues(text, i, count)) {
      character = lead & (0x3FU >> count);
      for (std::size_t k = 0; k < count; ++k)
        character = (character << 6) | (static_cast<unsigned char>(text[++i]) & 0x3F);
    }
    characters += character;
  }
}

std::u32string characters(std::string_view text) {
  std::u32string result;
  takeCharacters(text, result);
  return result;
}

// The table of all beginnings' distances, of which the last three rows are kept.
std::size_t slipsBetween(std::u32string_view one, std::u32string_view other, std::size_t limit) {
  const std::size_t difference = std::max(one.size(), other.size()) - std::min(one.size(), other.size());
  if (difference > limit || lettersDiffer(one, other, limit)) return limit + 1;
  std::array<std::vector<std::size_t>, 3> rows;
  for (auto& row : rows) row.resize(other.size() + 1);
  for (std::size_t j = 0; j <= other.size(); ++j) rows[0][j] = j;
  for (std::size_t i = 1; i <= one.size(); ++i) {
    const auto& before = rows[(i + 1) % 3];
    const auto& above = rows[(i - 1) % 3];
    auto& row = rows[i % 3];
    row[0] = i;
    for (std::size_t j = 1; j <= other.size(); ++j) {
      const bool same = one[i - 1] == other[j - 1];
      row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + (same ? 0 : 1)});
      const bool swapped = i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1];
      if (swapped) row[j] = std::min(row[j], before[j - 2] + 1);
    }
    if (*std::ranges::min_element(row) > limit) return limit + 1;
  }
  return rows[one.size() % 3][other.size()];
}

std::size_t forgivenSlips(std::u32string_view word) {
  const bool hasDigit = std::ranges::any_of(word, [](char32_t c) { return c >= U'0' && c <= U'9'; });
  if (hasDigit || word.size() < 3) return 0;
  return word.size() < 6 ? 1 : 2;
}

}  // namespace nerida::search

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/search/engine.h"
#include "host/search/relevance.h"

namespace nerida::search {

/// Collects hits and puts them into their order. A frequent word has very many: what decides most comparisons lies
/// together in two numbers, and the names are looked at only where these are equal.
class RankedHits {
 public:
  /// `orderName` is the name as words are compared.
  void add(const Rank& rank, std::string_view orderName, Hit hit);

  /// All of them, best first; nothing is left behind.
  std::vector<Hit> take();

 private:
  struct Entry {
    std::uint64_t rank;       ///< closeness, keywords, beginnings, words in the name
    std::uint64_t beginning;  ///< of the name
    std::uint32_t hit;
  };

  [[nodiscard]] bool comesBefore(const Entry& one, const Entry& other) const;
  [[nodiscard]] std::string_view orderNameOf(const Entry& entry) const;

  std::vector<Entry> entries;
  std::vector<Hit> hits;
  std::string orderNames;  ///< one behind the other
  std::vector<std::size_t> orderNameEnds;
};

}  // namespace nerida::search

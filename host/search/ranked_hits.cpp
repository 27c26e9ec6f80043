#include "host/search/ranked_hits.h"

#include <algorithm>
#include <tuple>

namespace nerida::search {
namespace {

std::uint64_t numberOf(const Rank& rank, std::string_view orderName) {
  constexpr std::ptrdiff_t mostWords = 0xFFFF;
  const auto words = static_cast<std::uint64_t>(std::min(std::ranges::count(orderName, ' '), mostWords));
  return (static_cast<std::uint64_t>(rank.closeness) << 48U) | (std::uint64_t{rank.keywords} << 32U) |
         (std::uint64_t{rank.beginnings} << 16U) | words;
}

/// The first letters as one number that compares as they do.
std::uint64_t beginningOf(std::string_view text) {
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < sizeof number; ++i) {
    number = (number << 8U) | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
  }
  return number;
}

}  // namespace

void RankedHits::add(const Rank& rank, std::string_view orderName, Hit hit) {
  hit.closeness = rank.closeness;
  entries.push_back({numberOf(rank, orderName), beginningOf(orderName), static_cast<std::uint32_t>(hits.size())});
  hits.push_back(std::move(hit));
  orderNames += orderName;
  orderNameEnds.push_back(orderNames.size());
}

std::string_view RankedHits::orderNameOf(const Entry& entry) const {
  const std::size_t start = entry.hit == 0 ? 0 : orderNameEnds[entry.hit - 1];
  return std::string_view(orderNames).substr(start, orderNameEnds[entry.hit] - start);
}

bool RankedHits::comesBefore(const Entry& one, const Entry& other) const {
  if (one.rank != other.rank) return one.rank < other.rank;
  if (one.beginning != other.beginning) return one.beginning < other.beginning;
  const int names = orderNameOf(one).compare(orderNameOf(other));
  if (names != 0) return names < 0;
  const Hit &first = hits[one.hit], &second = hits[other.hit];
  return std::tie(first.name, first.number) < std::tie(second.name, second.number);
}

std::vector<Hit> RankedHits::take() {
  std::ranges::sort(entries, [this](const Entry& one, const Entry& other) { return comesBefore(one, other); });
  std::vector<Hit> ordered;
  ordered.reserve(hits.size());
  for (const Entry& entry : entries) ordered.push_back(std::move(hits[entry.hit]));
  *this = {};
  return ordered;
}

}  // namespace nerida::search

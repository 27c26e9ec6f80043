#include "bench/library_of_words.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace nerida::bench {
namespace {

constexpr std::size_t vocabulary = 20'000;

/// Of our own, as the standard library's differ from one to the next.
class Dice {
 public:
  std::uint32_t next() {
    state = state * 6364136223846793005U + 1442695040888963407U;
    return static_cast<std::uint32_t>(state >> 33U);
  }
  double share() { return next() / 2147483648.0; }

 private:
  std::uint64_t state = 12345;
};

/// About as often as language has it: rank 0 comes ten times as often as rank 10.
std::size_t someRank(Dice& dice) {
  return static_cast<std::size_t>(std::pow(static_cast<double>(vocabulary), dice.share())) - 1;
}

}  // namespace

std::string wordOfRank(std::size_t rank) {
  static constexpr std::array onsets{"b", "d", "f", "g", "k", "l", "m", "n", "p", "r", "s", "t", "v", "st", "tr", "gl"};
  static constexpr std::array vowels{"a", "e", "i", "o", "u"};
  std::string word;
  // Scrambled, so that words of like frequency do not begin alike.
  std::size_t rest = (rank + 1) * 7919 % 512'000;
  for (int syllable = 0; syllable < 3; ++syllable) {
    word += onsets[rest % onsets.size()];
    rest /= onsets.size();
    word += vowels[rest % vowels.size()];
    rest /= vowels.size();
  }
  return word;
}

std::vector<search::ModelCard> libraryOfWords(std::size_t count) {
  constexpr std::uint32_t categories = 12, subcategories = 20, oneIsAnimatedOf = 8;
  Dice dice;
  std::vector<search::ModelCard> cards(count);
  for (std::size_t i = 0; i < count; ++i) {
    search::ModelCard& card = cards[i];
    card.number = static_cast<std::int32_t>(i + 1);
    for (std::uint32_t words = 1 + dice.next() % 3; words > 0; --words) {
      if (!card.name.empty()) card.name += ' ';
      card.name += wordOfRank(someRank(dice));
    }
    for (std::uint32_t words = 3 + dice.next() % 5; words > 0; --words) {
      card.keywords.push_back(wordOfRank(someRank(dice)));
    }
    const std::uint32_t category = dice.next() % categories;
    card.category = "Category " + std::to_string(category);
    card.subcategory = card.category + "." + std::to_string(dice.next() % subcategories);
    card.animated = dice.next() % oneIsAnimatedOf == 0;
  }
  return cards;
}

}  // namespace nerida::bench

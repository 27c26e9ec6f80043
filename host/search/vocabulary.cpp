#include "host/search/vocabulary.h"

#include <algorithm>
#include <tuple>

#include "host/search/spelling.h"
#include "host/search/tokenizer.h"

namespace nerida::search {
namespace {

/// More forms than any word has; a bound for what a damaged database may say.
constexpr std::size_t mostForms = 64;
constexpr std::size_t mostGuesses = 8;

struct Guess {
  std::size_t slips;
  bool otherBeginning;  ///< people rarely slip on the first letter
  std::int64_t models;
  std::string word;
};

/// Collects the nearest words only: a nearer one drops all before.
class Nearest {
 public:
  explicit Nearest(std::string_view word) : wanted(characters(word)), limit(forgivenSlips(wanted)) {}

  bool isHopeless() const { return limit == 0; }

  void offer(std::string_view word, std::int64_t models) {
    // Four bytes are the most that a letter has: a cheap test that spares most words the expensive one.
    if (word.size() > 4 * (wanted.size() + limit) || word.size() + limit < wanted.size()) return;
    takeCharacters(word, letters);
    const std::size_t slips = slipsBetween(wanted, letters, limit);
    if (slips > limit || letters.empty()) return;
    if (slips < limit) {
      guesses.clear();
      limit = slips;
    }
    guesses.push_back({slips, letters.front() != wanted.front(), models, std::string(word)});
  }

  std::vector<std::string> best() {
    std::ranges::sort(guesses, {}, [](const Guess& guess) {
      return std::make_tuple(guess.otherBeginning, -guess.models, std::string_view(guess.word));
    });
    std::vector<std::string> words;
    for (const Guess& guess : guesses) {
      if (guess.otherBeginning != guesses.front().otherBeginning || words.size() == mostGuesses) break;
      if (std::ranges::find(words, guess.word) == words.end()) words.push_back(guess.word);
    }
    return words;
  }

 private:
  std::u32string wanted, letters;
  std::size_t limit;
  std::vector<Guess> guesses;
};

}  // namespace

Vocabulary::Vocabulary(Database& database, const Tokenizer& tokenizer)
    : tokenizer(tokenizer),
      sameStem(database, "SELECT word FROM vocabulary WHERE stem = ?"),
      next(database, "SELECT word FROM vocabulary WHERE word > ? ORDER BY word LIMIT 1"),
      all(database, "SELECT word, models FROM vocabulary") {}

std::vector<std::string> Vocabulary::formsOf(std::string_view word) {
  const std::string stem = tokenizer.stem(word);
  std::vector<std::string> forms;
  sameStem.reset();
  sameStem.bind(1, stem);
  while (forms.size() < mostForms && sameStem.step()) forms.emplace_back(sameStem.text(0));
  sameStem.reset();
  return forms;
}

bool Vocabulary::hasLonger(std::string_view word) {
  next.reset();
  const bool has = next.bind(1, word).step() && next.text(0).starts_with(word);
  next.reset();
  return has;
}

std::vector<std::string> Vocabulary::nearest(std::string_view word, const std::vector<std::string>& others) {
  Nearest nearest(word);
  if (nearest.isHopeless()) return {};
  all.reset();
  while (all.step()) nearest.offer(all.text(0), all.number(1));
  all.reset();
  for (const std::string& other : others) nearest.offer(other, 0);
  return nearest.best();
}

}  // namespace nerida::search

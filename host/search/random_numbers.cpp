#include "host/search/random_numbers.h"

#include <algorithm>
#include <iterator>
#include <random>

#include "host/search/database.h"

namespace nerida::search {
namespace {

using Numbers = std::vector<std::int64_t>;

/// Where fewer than one number in so many is in use, guessing takes longer than reading all of them.
constexpr std::size_t guessesPerModel = 40;
constexpr std::size_t mostGuessedModels = 100;

// Guesses a number between the smallest and the greatest until enough models were hit: no model is preferred, however
// wide the gaps between the numbers are.
Numbers byGuessing(Database& database, std::size_t count, std::mt19937& random) {
  const std::int64_t first = database.number("SELECT min(number) FROM model");
  const std::int64_t last = database.number("SELECT max(number) FROM model");
  std::uniform_int_distribution<std::int64_t> any(first, std::max(first, last));
  Statement exists(database, "SELECT 1 FROM model WHERE number = ?");
  Numbers numbers;
  for (std::size_t guess = 0; guess < count * guessesPerModel && numbers.size() < count; ++guess) {
    const std::int64_t number = any(random);
    exists.reset();
    const bool isNew = std::ranges::find(numbers, number) == numbers.end();
    if (isNew && exists.bind(1, number).step()) numbers.push_back(number);
  }
  return numbers;
}

Numbers byReadingAll(Database& database, std::size_t count, std::mt19937& random) {
  Statement row(database, "SELECT number FROM model");
  Numbers all, chosen;
  while (row.step()) all.push_back(row.number(0));
  std::ranges::sample(all, std::back_inserter(chosen), static_cast<std::ptrdiff_t>(count), random);
  std::ranges::shuffle(chosen, random);
  return chosen;
}

}  // namespace

Numbers randomNumbers(Database& database, std::size_t count) {
  std::random_device seed;
  std::mt19937 random(seed());
  const Numbers numbers = count <= mostGuessedModels ? byGuessing(database, count, random) : Numbers();
  return numbers.size() == count ? numbers : byReadingAll(database, count, random);
}

}  // namespace nerida::search

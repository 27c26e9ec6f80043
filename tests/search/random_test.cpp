#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "tests/search/sample.h"

namespace nerida::search {
namespace {

std::set<std::int32_t> numbersOf(const std::vector<Hit>& hits) {
  std::set<std::int32_t> numbers;
  for (const Hit& hit : hits) numbers.insert(hit.number);
  return numbers;
}

std::vector<ModelCard> numbered(const std::vector<std::int32_t>& numbers) {
  std::vector<ModelCard> cards;
  cards.reserve(numbers.size());
  for (const std::int32_t number : numbers) cards.push_back(card(number, "Thing " + std::to_string(number)));
  return cards;
}

TEST(RandomSelection, IsAnotherOneEachTime) {
  const Sample sample(numberedCards(500));
  SearchEngine engine = sample.engine();
  std::set<std::set<std::int32_t>> selections;
  for (int i = 0; i < 20; ++i) {
    const std::vector<Hit> hits = engine.searchRandom(30);
    EXPECT_EQ(numbersOf(hits).size(), 30U) << "a model came twice";
    EXPECT_EQ(hits.front().name, "Thing " + std::to_string(hits.front().number));
    selections.insert(numbersOf(hits));
  }
  EXPECT_EQ(selections.size(), 20U);
}

TEST(RandomSelection, IsAnotherOneForEachEngine) {
  const Sample sample(numberedCards(500));
  EXPECT_NE(numbersOf(sample.engine().searchRandom(30)), numbersOf(sample.engine().searchRandom(30)));
}

TEST(RandomSelection, OfFewModelsHasAllOfThemInAnyOrder) {
  const Sample sample(numberedCards(12));
  SearchEngine engine = sample.engine();
  std::set<std::vector<std::string>> orders;
  for (int i = 0; i < 10; ++i) {
    const std::vector<Hit> hits = engine.searchRandom(30);
    EXPECT_EQ(numbersOf(hits).size(), 12U);
    orders.insert(namesOf(hits));
  }
  EXPECT_GT(orders.size(), 1U);
}

TEST(RandomSelection, OfNoModelsIsEmpty) { EXPECT_TRUE(Sample({}).engine().searchRandom(30).empty()); }

// Numbers with wide gaps, and negative ones: each model must come up about as often as any other.
TEST(RandomSelection, PrefersNoModel) {
  std::vector<std::int32_t> close, far;
  for (std::int32_t i = 0; i < 60; ++i) close.push_back(i < 30 ? i : i + 500);
  for (std::int32_t i = 0; i < 60; ++i) far.push_back(i < 30 ? i - 2000000000 : i * 30000000);
  for (const auto& numbers : {close, far}) {
    const Sample sample(numbered(numbers));
    SearchEngine engine = sample.engine();
    std::map<std::int32_t, int> times;
    for (int i = 0; i < 400; ++i) {
      for (const Hit& hit : engine.searchRandom(30)) ++times[hit.number];
    }
    ASSERT_EQ(times.size(), 60U);
    // 200 are expected; ten standard deviations are 100.
    for (const auto& [number, count] : times) EXPECT_NEAR(count, 200, 100) << number;
  }
}

}  // namespace
}  // namespace nerida::search

#include "host/search/spelling.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/search/sample.h"

namespace nerida::search {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Pair {
  const char32_t* one;
  const char32_t* other;
  std::size_t slips;
};

TEST(Slips, AreLettersTooManyTooFewWrongOrSwapped) {
  const Pair pairs[] = {
      {U"", U"", 0},
      {U"boat", U"boat", 0},
      {U"boat", U"boats", 1},
      {U"boat", U"bot", 1},
      {U"boat", U"beat", 1},
      {U"boat", U"baot", 1},
      {U"boat", U"oabt", 2},
      {U"", U"abc", 3},
      {U"house", U"huose", 1},
      {U"helicopter", U"helikoptr", 2},
      {U"caf\u00E9", U"cafe", 1},
      {U"lorry", U"house", 4},
  };
  for (const Pair& pair : pairs) {
    const std::u32string_view one = pair.one, other = pair.other;
    EXPECT_EQ(slipsBetween(one, other, 5), pair.slips) << std::string(one.begin(), one.end());
    EXPECT_EQ(slipsBetween(other, one, 5), pair.slips) << std::string(one.begin(), one.end());
  }
}

TEST(Slips, AreCountedUpToTheLimitOnly) {
  EXPECT_EQ(slipsBetween(U"lorry", U"house", 2), 3U);
  EXPECT_EQ(slipsBetween(U"a", U"abcdefgh", 2), 3U);
}

TEST(Slips, AreForgivenInLongWords) {
  EXPECT_EQ(forgivenSlips(U"ox"), 0U);
  EXPECT_EQ(forgivenSlips(U"cat"), 1U);
  EXPECT_EQ(forgivenSlips(U"house"), 1U);
  EXPECT_EQ(forgivenSlips(U"castle"), 2U);
  EXPECT_EQ(forgivenSlips(U"boeing747"), 0U);
}

TEST(Characters, OfUtf8AreDecoded) {
  EXPECT_EQ(characters("a\u00E9\u6F22\U0001F980"), U"a\u00E9\u6F22\U0001F980");
  EXPECT_EQ(characters("\xFF\xC3"), std::u32string({0xFF, 0xC3}));
  EXPECT_EQ(characters("\xE6\xBC"), std::u32string({0xE6, 0xBC}));
}

const std::vector<ModelCard> misspeltCards = {
    card(1, "Helicopter", {"aircraft"}), card(2, "Castle", {"tower"}), card(3, "Cattle", {"cow"}),
    card(4, "Towel", {"bath"}),          card(5, "Automobile"),        card(6, "Rose", {"flower"}),
    card(7, "Tulip", {"flower"}),        card(8, "Flour Bag"),
};

TEST(Misspelt, WordsFindWhatWasMeant) {
  const Sample sample(misspeltCards);
  EXPECT_THAT(sample.find("helicoptr"), ElementsAre("Helicopter"));
  EXPECT_THAT(sample.find("hellicopter aircraft"), ElementsAre("Helicopter"));
  EXPECT_THAT(sample.find("aircarft"), ElementsAre("Helicopter"));
  EXPECT_THAT(sample.find("flwoers"), ElementsAre("Rose", "Tulip"));
}

TEST(Misspelt, WordsAreThoseThatFindNothingThemselves) {
  const Sample sample(misspeltCards);
  EXPECT_THAT(sample.find("tower"), ElementsAre("Castle"));
  EXPECT_THAT(sample.find("towe"), ElementsAre("Towel", "Castle"));
}

TEST(Misspelt, WordsWithSeveralNearestOnesFindAllOfThem) {
  const Sample sample(misspeltCards);
  EXPECT_THAT(sample.find("catle"), ElementsAre("Castle", "Cattle"));
}

TEST(Misspelt, WordsKeepTheirFirstLetterWhereTheyCan) {
  const Sample sample({card(1, "Bear"), card(2, "Pear"), card(3, "Gear")});
  EXPECT_THAT(sample.find("baer"), ElementsAre("Bear"));
  EXPECT_THAT(sample.find("xear"), ElementsAre("Bear", "Gear", "Pear"));
}

TEST(Misspelt, WordsAreNotGuessedTooFar) {
  const Sample sample(misspeltCards);
  EXPECT_THAT(sample.find("hlcptr"), IsEmpty());
  EXPECT_THAT(sample.find("ro"), ElementsAre("Rose"));
  EXPECT_THAT(sample.find("zz"), IsEmpty());
}

TEST(Misspelt, SynonymsAreUnderstoodToo) {
  const Sample sample(misspeltCards, "limousine, automobile\n");
  EXPECT_THAT(sample.find("limosine"), ElementsAre("Automobile"));
}

TEST(Misspelt, HitsSaySo) {
  const Sample sample(misspeltCards, "choppers, helicopter\n");
  const auto closeness = [&](const char* text) { return sample.engine().searchKeywords(text).at(0).closeness; };
  EXPECT_EQ(closeness("helicopter"), Closeness::exact);
  EXPECT_EQ(closeness("chopper"), Closeness::synonym);
  EXPECT_EQ(closeness("helicoper"), Closeness::spelling);
}

}  // namespace
}  // namespace nerida::search

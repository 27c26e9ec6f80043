#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/search/sample.h"

namespace nerida::search {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* lines =
    "\xEF\xBB\xBF# words that mean the same\r\n"
    "car, automobile, motor car\r\n"
    "vehicle > car, lorry, fire engine\r\n"
    "\r\n"
    "fire engine, fire truck  # both are red\r\n"
    ", ,,\r\n"
    ">\r\n"
    "shop, store\r\n";

const std::vector<ModelCard> synonymCards = {
    card(1, "Car", {"road"}),           card(2, "Old Automobile"),          card(3, "Lorry", {"vehicle"}),
    card(4, "Fire Engine", {"rescue"}), card(5, "Truck", {"fire"}),         card(6, "Toy Store"),
    card(7, "Carriage", {"horse"}),     card(8, "Box", {"storing things"}),
};

TEST(Synonyms, ComeAfterWhatWasAskedFor) {
  const Sample sample(synonymCards, lines);
  EXPECT_THAT(sample.find("car"), ElementsAre("Car", "Carriage", "Old Automobile"));
  EXPECT_THAT(sample.find("automobile"), ElementsAre("Old Automobile", "Car"));
}

TEST(Synonyms, NeverReorderTheExactHits) {
  const Sample with(synonymCards, lines), without(synonymCards);
  for (const char* text : {"car", "fire", "store", "vehicle", "fire engine", "o", "horse carriage"}) {
    const auto plain = without.find(text), widened = with.find(text);
    ASSERT_LE(plain.size(), widened.size());
    EXPECT_TRUE(std::equal(plain.begin(), plain.end(), widened.begin())) << text;
  }
}

TEST(Synonyms, GoOneWayFromTheGeneralToTheSpecial) {
  const Sample sample(synonymCards, lines);
  EXPECT_THAT(sample.find("vehicle"), ElementsAre("Lorry", "Car", "Fire Engine"));
  EXPECT_THAT(sample.find("lorry"), ElementsAre("Lorry"));
}

TEST(Synonyms, OfOtherFormsOfTheWordCount) {
  const Sample sample(synonymCards, lines);
  EXPECT_THAT(sample.find("shops"), ElementsAre("Toy Store", "Box"));
  EXPECT_THAT(sample.find("cars"), ElementsAre("Car", "Old Automobile"));
}

TEST(Synonyms, OfSeveralWordsStandForEachOther) {
  const Sample sample(synonymCards, lines);
  EXPECT_THAT(sample.find("fire engine"), ElementsAre("Fire Engine", "Truck"));
  EXPECT_THAT(sample.find("fire truck"), ElementsAre("Truck", "Fire Engine"));
  EXPECT_THAT(sample.find("rescue fire truck"), ElementsAre("Fire Engine"));
  EXPECT_THAT(sample.find("motor car"), ElementsAre("Car", "Old Automobile"));
}

TEST(Synonyms, HelpEachWordOfAQuestion) {
  const Sample sample(synonymCards, lines);
  EXPECT_THAT(sample.find("automobile road"), ElementsAre("Car"));
}

TEST(Synonyms, OfTheUserAreAddedToTheProducts) {
  const Sample sample(synonymCards, lines, "car, jalopy\njalopy, old banger\n");
  EXPECT_THAT(sample.find("jalopy"), ElementsAre("Car"));
  EXPECT_THAT(sample.find("car"), ElementsAre("Car", "Carriage", "Old Automobile"));
}

TEST(Synonyms, AreNotNeeded) {
  const Sample sample(synonymCards);
  EXPECT_THAT(sample.find("lorry"), ElementsAre("Lorry"));
  EXPECT_THAT(sample.find("jalopy"), IsEmpty());
}

TEST(Synonyms, OfWhatIsNoTextDoNoHarm) {
  std::string garbage;
  for (int i = 0; i < 20000; ++i) garbage += static_cast<char>((i * 7919) >> 3);
  EXPECT_THAT(Sample(synonymCards, garbage).find("lorry"), ElementsAre("Lorry"));
  EXPECT_THAT(Sample(synonymCards, std::string("car\0, lorry\n", 12)).find("horse"), ElementsAre("Carriage"));
}

}  // namespace
}  // namespace nerida::search

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/search/sample.h"

namespace nerida::search {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Names = std::vector<std::string>;

class Keywords : public ::testing::Test {
 protected:
  const Sample sample{{
      card(1, "Sailing Boat", {"ship", "water", "sea"}),
      card(2, "House", {"building", "home"}),
      card(3, "Boat House", {"building", "water"}),
      card(4, "Duck", {"bird", "boats"}),
      card(5, "Boat"),
      card(6, "Boatswain", {"sailor"}),
      card(7, "Houses in a Row", {"street", "boat"}),
      card(8, "\u00C9clair", {"cake"}),
      card(9, "Dog's Bed", {"pet"}),
      card(10, "100% \"Quoted\" Name", {"it's"}),
  }};
};

TEST_F(Keywords, AWordFindsNamesBeforeKeywordsAndWholeWordsBeforeBeginnings) {
  EXPECT_THAT(sample.find("boat"),
              ElementsAre("Boat", "Boat House", "Sailing Boat", "Boatswain", "Duck", "Houses in a Row"));
}

TEST_F(Keywords, AllWordsMustMatch) {
  EXPECT_THAT(sample.find("boat water"), ElementsAre("Boat House", "Sailing Boat"));
  EXPECT_THAT(sample.find("boat house"), ElementsAre("Boat House", "Houses in a Row"));
  EXPECT_THAT(sample.find("boat submarine"), IsEmpty());
}

TEST_F(Keywords, AModelWithMoreOfTheWordsInItsNameComesFirst) {
  EXPECT_THAT(sample.find("house boat"), ElementsAre("Boat House", "Houses in a Row"));
  EXPECT_THAT(sample.find("building water"), ElementsAre("Boat House"));
}

TEST_F(Keywords, OtherFormsOfAWordCountAsTheWord) {
  EXPECT_THAT(sample.find("houses"), ElementsAre("House", "Boat House", "Houses in a Row"));
  EXPECT_THAT(sample.find("boating"), ElementsAre("Boat", "Boat House", "Sailing Boat", "Duck", "Houses in a Row"));
}

TEST_F(Keywords, ABeginningFindsItsWords) {
  EXPECT_THAT(sample.find("buil"), ElementsAre("House", "Boat House"));
  EXPECT_THAT(sample.find("buildi"), ElementsAre("House", "Boat House"));
  EXPECT_THAT(sample.find("d"), ElementsAre("Duck", "Dog's Bed"));
}

TEST_F(Keywords, CaseAndAccentsMakeNoDifference) {
  EXPECT_THAT(sample.find("DUCK"), ElementsAre("Duck"));
  EXPECT_THAT(sample.find("eclair"), ElementsAre("\u00C9clair"));
  EXPECT_THAT(sample.find("\u00E9CLAIR"), ElementsAre("\u00C9clair"));
}

TEST_F(Keywords, ThePossessiveIsNoWordOfItsOwn) {
  EXPECT_THAT(sample.find("duck's"), ElementsAre("Duck"));
  EXPECT_THAT(sample.find("duck\u2019s bird"), ElementsAre("Duck"));
  EXPECT_THAT(sample.find("dog's"), ElementsAre("Dog's Bed"));
  EXPECT_THAT(sample.find("dogs bed"), ElementsAre("Dog's Bed"));
}

TEST_F(Keywords, AWordThatIsSaidTwiceIsAskedOnce) { EXPECT_EQ(sample.find("boat Boat boat"), sample.find("boat")); }

struct Asked {
  const char* text;
};
void PrintTo(const Asked& asked, std::ostream* stream) { *stream << asked.text; }

class NothingToFind : public Keywords, public ::testing::WithParamInterface<Asked> {};

TEST_P(NothingToFind, GivesNoHitsAndNoError) { EXPECT_THAT(sample.find(GetParam().text), IsEmpty()); }

INSTANTIATE_TEST_SUITE_P(Texts, NothingToFind,
                         ::testing::Values(Asked{""}, Asked{"   "}, Asked{":"}, Asked{"\"\"\"\""}, Asked{"'"},
                                           Asked{"* ^ + - ( ) { } : ~"}, Asked{"AND OR NOT NEAR"},
                                           Asked{"\xFF\xFE\x80"}, Asked{"boat; DROP TABLE model"}, Asked{"xyzzyx"}));

TEST_F(Keywords, SignsOfQueryLanguagesAreNoMoreThanSeparators) {
  const Names boats = sample.find("boat");
  for (const char* text : {"\"boat", "boat*", "name:boat", "(boat", "-boat", "^boat", "'boat'", "{boat}", "boat\t"}) {
    const std::string plain = std::string_view(text) == "name:boat" ? "name boat" : "boat";
    EXPECT_EQ(sample.find(text), sample.find(plain)) << text;
  }
  EXPECT_THAT(boats, SizeIs(6));
}

TEST_F(Keywords, NamesComeBackLetterByLetter) {
  EXPECT_THAT(sample.find("quoted"), ElementsAre("100% \"Quoted\" Name"));
  EXPECT_THAT(sample.find("100%"), ElementsAre("100% \"Quoted\" Name"));
}

TEST_F(Keywords, AQuestionOfTenThousandCharactersIsAnswered) {
  std::string same, different;
  while (same.size() < 10000) same += "boat ";
  for (int i = 0; different.size() < 10000; ++i) different += "b" + std::to_string(i) + " ";
  EXPECT_EQ(sample.find(same), sample.find("boat"));
  EXPECT_THAT(sample.find(different), IsEmpty());
  EXPECT_THAT(sample.find(std::string(10000, 'b')), IsEmpty());
}

TEST(KeywordsOfMany, AQuestionOfManyKnownWordsIsAnswered) {
  std::string name, text;
  for (int i = 0; i < 2000; ++i) name += "w" + std::to_string(i) + " ";
  text = name;
  const Sample sample({card(1, name), card(2, "w1 w2 w3")});
  EXPECT_EQ(sample.find(text).size(), 1U);
}

TEST(KeywordsOfMany, LongAndForeignNamesAreFoundAndKept) {
  std::string longName;
  for (int i = 0; i < 60; ++i) longName += "Sphinx";
  const Names names = {longName, "\u6F22\u5B57 \U0001F980", "\u041C\u0435\u0434\u0432\u0435\u0434\u044C"};
  const Sample sample({card(1, names[0]), card(2, names[1]), card(3, names[2])});
  EXPECT_THAT(sample.find("sphinxsphinx"), ElementsAre(names[0]));
  EXPECT_THAT(sample.find("\u6F22"), ElementsAre(names[1]));
  EXPECT_THAT(sample.find("\u043C\u0435\u0434\u0432\u0435\u0434\u044C"), ElementsAre(names[2]));
}

TEST(KeywordsOfMany, AllHitsAreReturnedHoweverManyThereAre) {
  const Sample sample(numberedCards(33000));
  const std::vector<Hit> hits = sample.engine().searchKeywords("thing");
  ASSERT_EQ(hits.size(), 33000U);
  EXPECT_EQ(hits.front().name, "Thing 1");
}

TEST(KeywordsOfMany, TheFlagsMarkTheAnimatedOnes) {
  ModelCard moving = card(1, "Windmill");
  moving.animated = true;
  const Sample sample({moving, card(2, "Wind Chime")});
  const std::vector<Hit> hits = sample.engine().searchKeywords("wind");
  ASSERT_EQ(hits.size(), 2U);
  EXPECT_EQ(hits[0].flags, 0);
  EXPECT_EQ(hits[1].flags, 0x20);
  EXPECT_EQ(hits[1].number, 1);
}

}  // namespace
}  // namespace nerida::search

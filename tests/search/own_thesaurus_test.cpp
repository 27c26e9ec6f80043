// The product's own thesaurus: each line says something, and some examples of what people type.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "host/search/database.h"
#include "host/search/thesaurus.h"
#include "host/search/tokenizer.h"
#include "tests/search/sample.h"

namespace nerida::search {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

TEST(OwnThesaurus, SaysSomethingInEveryLine) {
  Database database = Database::temporary();
  const Tokenizer tokenizer(database);
  std::ifstream stream(OWN_THESAURUS);
  int lines = 0;
  for (std::string line; std::getline(stream, line); ++lines) {
    if (line.empty() || line.starts_with('#')) continue;
    Thesaurus alone(tokenizer);
    alone.add(line);
    const std::vector<std::string> first = tokenizer.words(line.substr(0, line.find_first_of(",>")));
    EXPECT_THAT(alone.synonyms(first), Not(IsEmpty())) << line;
  }
  EXPECT_GT(lines, 100);
}

TEST(OwnThesaurus, KnowsWhatPeopleType) {
  const Sample sample({card(1, "Television"), card(2, "Fire engine"), card(3, "Gift"), card(4, "Spanner"),
                       card(5, "Aeroplane"), card(6, "Duck"), card(7, "Lorry")},
                      library::contentOf(OWN_THESAURUS));
  EXPECT_THAT(sample.find("tv"), ElementsAre("Television"));
  EXPECT_THAT(sample.find("fire truck"), ElementsAre("Fire engine"));
  EXPECT_THAT(sample.find("presents"), ElementsAre("Gift"));
  EXPECT_THAT(sample.find("wrench"), ElementsAre("Spanner"));
  EXPECT_THAT(sample.find("airplane"), ElementsAre("Aeroplane"));
  EXPECT_THAT(sample.find("birds"), ElementsAre("Duck"));
  EXPECT_THAT(sample.find("trukc"), ElementsAre("Lorry"));
}

}  // namespace
}  // namespace nerida::search

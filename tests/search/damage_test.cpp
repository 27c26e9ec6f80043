// Databases, questions and thesauri that chance has damaged: a search gives hits or an error, nothing else.
#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include "host/search/model_database.h"
#include "tests/search/sample.h"

namespace nerida::search {
namespace {

std::vector<ModelCard> manyCards() {
  std::vector<ModelCard> cards = numberedCards(150);
  for (ModelCard& one : cards) {
    one.keywords = {"boat", "water " + std::to_string(one.number % 13), "k" + std::to_string(one.number)};
    one.subcategory = "Sub " + std::to_string(one.number % 9);
    one.animated = one.number % 4 == 0;
  }
  return cards;
}

/// Everything that a catalog does; true when all of it succeeded.
bool useAll(const EngineFiles& files) {
  try {
    SearchEngine engine(files);
    for (const char* text : {"boat", "thing 7", "wat", "baot", "k1 water"}) engine.searchKeywords(text);
    engine.searchRandom(30);
    for (const Category& category : engine.categories()) {
      for (const std::string& name : category.subcategories) engine.searchCategory(name);
    }
    return true;
  } catch (const DatabaseError& error) {
    EXPECT_STRNE(error.what(), "");
    return false;
  }
}

void damage(std::string& bytes, std::mt19937& random) {
  const auto any = [&](std::size_t below) { return random() % below; };
  switch (any(4)) {
    case 0:  // single bytes anywhere
      for (std::size_t i = 1 + any(8); i > 0; --i) bytes[any(bytes.size())] = static_cast<char>(random());
      break;
    case 1:  // the beginning of a page, where its structure is written
      for (std::size_t i = 1 + any(4); i > 0; --i) {
        bytes[any(bytes.size() / 4096) * 4096 + any(64)] = static_cast<char>(random());
      }
      break;
    case 2:  // the end is missing
      bytes.resize(any(bytes.size()));
      break;
    default:  // a piece of it stands in another place too
      bytes.replace(any(bytes.size() - 5000), 4096, bytes.substr(any(bytes.size() - 5000), 4096));
  }
}

TEST(Damage, InADatabaseGivesHitsOrAnError) {
  const Sample sample(manyCards(), "boat, ship\n");
  const std::string whole = library::contentOf(sample.database());
  const std::filesystem::path file = sample.path() / "damaged.db";
  int broken = 0;
  for (unsigned seed = 0; seed < 400; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    std::string bytes = whole;
    damage(bytes, random);
    std::ofstream(file, std::ios::binary) << bytes;
    if (!useAll({file, sample.files().thesaurus, {}})) ++broken;
  }
  EXPECT_GT(broken, 40) << "the damage was too small to be noticed";
  EXPECT_LT(broken, 400) << "nothing ever worked";
}

TEST(Damage, InAQuestionGivesHitsOrNone) {
  const Sample sample(manyCards());
  SearchEngine engine = sample.engine();
  const std::string alphabet = "boat thing wk17\"'*:()^-+{}\\%_,;.~NEAR AND OR NOT\t\n\xC3\xA9\xE2\x80\xFF";
  for (unsigned seed = 0; seed < 1500; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    std::string text;
    for (std::size_t length = random() % 40; length > 0; --length) text += alphabet[random() % alphabet.size()];
    EXPECT_NO_THROW(engine.searchKeywords(text));
    EXPECT_NO_THROW(engine.searchCategory(text));
  }
}

TEST(Damage, InAThesaurusDoesNotHideExactHits) {
  const Sample sample(manyCards());
  const std::string alphabet = "boat,>#\n\r waterk1\xC3\xA9\xFF";
  for (unsigned seed = 0; seed < 200; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    std::string text;
    for (std::size_t length = random() % 400; length > 0; --length) text += alphabet[random() % alphabet.size()];
    std::ofstream(sample.path() / "Thesaurus.txt", std::ios::binary) << text;
    EXPECT_EQ(sample.find("k42").front(), "Thing 42");
    EXPECT_EQ(sample.find("water").size(), 150U);
  }
}

}  // namespace
}  // namespace nerida::search

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/search/model_database.h"
#include "tests/search/sample.h"

namespace nerida::search {

bool operator==(const Category& one, const Category& other) {
  return one.name == other.name && one.subcategories == other.subcategories;
}
void PrintTo(const Category& category, std::ostream* stream) {
  *stream << category.name << ':';
  for (const std::string& name : category.subcategories) *stream << ' ' << name;
}

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::vector<ModelCard> sortedCards = {
    {1, "Yak", "Animals", "Farm", {}, false},
    {2, "ant", "Animals", "Insects", {}, true},
    {3, "Zebra", "Animals", "Farm", {}, false},
    {4, "apple", "Food", "Fruit", {}, false},
    {5, "\u00C9clair", "Food", "Farm", {}, false},
    {6, "Bee", "Animals", "Insects", {}, false},
    {7, "Bee", "Animals", "Insects", {}, false},
    {8, "Cube", "Shapes", "", {}, false},
    {9, "Loose", "", "", {}, false},
    {10, "Plank", "buildings", "Cats & Dogs", {}, false},
    {11, "10 Tins", "Food", "Fruit", {}, false},
};

TEST(Categories, AreListedByNameWithTheirSubcategories) {
  EXPECT_THAT(Sample(sortedCards).engine().categories(),
              ElementsAre(Category{"Animals", {"Farm", "Insects"}}, Category{"buildings", {"Cats & Dogs"}},
                          Category{"Food", {"Farm", "Fruit"}}, Category{"Shapes", {}}));
}

TEST(Categories, OfAnEmptyDatabaseAreNone) { EXPECT_THAT(Sample({}).engine().categories(), IsEmpty()); }

TEST(CategorySearch, GivesTheModelsByName) {
  const Sample sample(sortedCards);
  SearchEngine engine = sample.engine();
  EXPECT_THAT(namesOf(engine.searchCategory("Fruit")), ElementsAre("10 Tins", "apple"));
  EXPECT_THAT(namesOf(engine.searchCategory("Cats & Dogs")), ElementsAre("Plank"));
  const std::vector<Hit> insects = engine.searchCategory("Insects");
  EXPECT_THAT(namesOf(insects), ElementsAre("ant", "Bee", "Bee"));
  EXPECT_EQ(insects[0].flags, 0x20);
  EXPECT_EQ(insects[1].number, 6);
  EXPECT_EQ(insects[2].number, 7);
}

TEST(CategorySearch, TakesSubcategoriesOfOneNameTogether) {
  EXPECT_THAT(namesOf(Sample(sortedCards).engine().searchCategory("Farm")), ElementsAre("\u00C9clair", "Yak", "Zebra"));
}

TEST(CategorySearch, KnowsSubcategoriesOnly) {
  const Sample sample(sortedCards);
  SearchEngine engine = sample.engine();
  for (const char* name : {"", "Animals", "Nothing", "Farm ", "' OR 1 --", "%"}) {
    EXPECT_THAT(engine.searchCategory(name), IsEmpty()) << name;
  }
}

TEST(Categories, GoWithTheirLastModel) {
  const Sample sample(sortedCards);
  changeDatabase(sample.path(), {{12, "Kiwi", "Food", "Birds", {}, false}}, {10, 4});
  EXPECT_THAT(sample.engine().categories(),
              ElementsAre(Category{"Animals", {"Farm", "Insects"}}, Category{"Food", {"Birds", "Farm", "Fruit"}},
                          Category{"Shapes", {}}));
}

}  // namespace
}  // namespace nerida::search

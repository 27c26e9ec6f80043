// The category menus: how they are filled from the search component's list, and the searches that they start.
#include <limits>

#include "tests/unit/catalog_desk.h"

namespace nerida {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

std::string categoryBox(const std::string& failure) {
  return "box [Zephra Catalog] Error while adding categories to menu: " + failure;
}

// Categories named C1, C2, … with so many sub-categories each, named after both.
CategoryList listOf(const std::vector<std::int16_t>& counts) {
  CategoryList list;
  list.lastCategory = static_cast<std::int32_t>(counts.size()) - 1;
  list.subCategoryCounts.elements = counts;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    const std::string name = "C" + std::to_string(i + 1);
    list.categoryNames.elements.push_back(name);
    for (int j = 0; j < counts[i]; ++j) list.subCategoryNames.elements.push_back(name + "." + std::to_string(j));
  }
  return list;
}

class Categories : public CatalogTest {
 protected:
  void SetUp() override {}
  // The lines of the filling alone.
  Lines fill(const CategoryList& list) {
    platform.search.categories = [list] { return list; };
    create();
    Lines lines = take();
    std::erase_if(lines, [](const std::string& line) { return !line.starts_with("mnu") && !line.starts_with("box"); });
    return lines;
  }
  std::vector<std::string> subMenu(int category) { return menu().inSight("mnuSubCategory" + std::to_string(category)); }
};

TEST_F(Categories, AreFilledInOrder) {
  EXPECT_THAT(
      fill(listOf({2, 1})),
      ElementsAre("mnuCategory(1): visible", "mnuSubCategory1(0): caption C1.0", "mnuSubCategory1(1): load",
                  "mnuSubCategory1(1): visible", "mnuSubCategory1(1): caption C1.1", "mnuCategory(1): caption C1",
                  "mnuCategory(2): visible", "mnuSubCategory2(0): caption C2.0", "mnuCategory(2): caption C2"));
  EXPECT_THAT(menu().inSight("mnuCategory"), ElementsAre("Surprise Me", "C1", "C2"));
  EXPECT_THAT(subMenu(1), ElementsAre("C1.0", "C1.1"));
  EXPECT_THAT(subMenu(2), ElementsAre("C2.0"));
  EXPECT_THAT(subMenu(3), IsEmpty());
}

struct ComponentEnd {
  const char* what;
  CategoryList (*answer)();
};

void PrintTo(const ComponentEnd& end, std::ostream* out) { *out << end.what; }

class CategoryComponent : public Categories, public testing::WithParamInterface<ComponentEnd> {};

TEST_P(CategoryComponent, IsReleasedHoweverTheFillingEnds) {
  platform.search.categories = GetParam().answer;
  answerBoxes(1);
  create();
  Lines lines = take();
  std::erase_if(lines, [](const std::string& line) { return !line.starts_with("search component"); });
  EXPECT_THAT(lines,
              ElementsAre("search component: create", "search component: categories", "search component: release"));
}

INSTANTIATE_TEST_SUITE_P(Ends, CategoryComponent,
                         testing::Values(ComponentEnd{"filled", [] { return listOf({1}); }},
                                         ComponentEnd{"none", [] { return CategoryList(); }},
                                         ComponentEnd{"too short",
                                                      [] {
                                                        CategoryList list = listOf({1});
                                                        list.lastCategory = 1;
                                                        return list;
                                                      }},
                                         ComponentEnd{"failing", []() -> CategoryList { throw Error(513); }}));

TEST_F(Categories, NoneLeaveTheDesignedMenu) {
  for (const std::int32_t last : {-1, -2, std::numeric_limits<std::int32_t>::min()}) {
    CategoryList list = listOf({1});  // what the arrays hold does not count
    list.lastCategory = last;
    EXPECT_THAT(fill(list), IsEmpty());
    EXPECT_THAT(menu().inSight("mnuCategory"), ElementsAre("Surprise Me"));
    control.reset();
    take();
  }
}

TEST_F(Categories, AnEmptyOneTakesNoNames) {
  EXPECT_THAT(fill(listOf({1, 0, -5, 2})), testing::Not(Contains(testing::HasSubstr("box"))));
  EXPECT_THAT(menu().inSight("mnuCategory"), ElementsAre("Surprise Me", "C1", "C2", "C3", "C4"));
  EXPECT_THAT(subMenu(2), IsEmpty());
  EXPECT_THAT(subMenu(3), IsEmpty());
  EXPECT_THAT(subMenu(4), ElementsAre("C4.0", "C4.1"));
}

TEST_F(Categories, ASixteenthHasNoMenuAndLaterOnesNeverAppear) {
  fill(listOf({1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 3, 2, 4, 1}));
  EXPECT_EQ(menu().inSight("mnuCategory").size(), 17U);
  EXPECT_EQ(menu().caption("mnuCategory", 16), "C16");
  EXPECT_THAT(subMenu(15), ElementsAre("C15.0", "C15.1", "C15.2"));
  EXPECT_FALSE(menu().exists("mnuCategory", 17));
  EXPECT_FALSE(menu().exists("mnuSubCategory16", 0));
}

TEST_F(Categories, ExactlySixteenAreFilledFromAListOfSixteen) {
  fill(listOf(std::vector<std::int16_t>(16, 1)));
  EXPECT_EQ(menu().inSight("mnuCategory").size(), 17U);
}

TEST_F(Categories, NothingIsAskedOfTheSixteenthButItsNameAndCount) {
  CategoryList list = listOf(std::vector<std::int16_t>(16, 1));
  list.subCategoryNames.elements.pop_back();
  list.lastCategory = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(fill(list).back(), "mnuCategory(16): caption C16");
}

TEST_F(Categories, FifteenLeaveTheSixteenthHidden) {
  fill(listOf(std::vector<std::int16_t>(15, 1)));
  EXPECT_EQ(menu().inSight("mnuCategory").size(), 16U);
}

TEST_F(Categories, ATooShortListEndsTheFillingAndKeepsWhatThereIs) {
  CategoryList list = listOf({1, 2});
  list.subCategoryNames.elements.pop_back();
  answerBoxes(1);
  const Lines lines = fill(list);
  EXPECT_EQ(lines.back(), categoryBox("Subscript out of range"));
  EXPECT_THAT(subMenu(2), ElementsAre("C2.0", "C2.0"));  // a new element begins as a copy of the first
  EXPECT_EQ(menu().caption("mnuCategory", 2), "");
}

struct ShortList {
  const char* what;
  CategoryList list;
};

void PrintTo(const ShortList& shortList, std::ostream* out) { *out << shortList.what; }

CategoryList without(void (*damage)(CategoryList&)) {
  CategoryList list = listOf({1, 1});
  damage(list);
  return list;
}

class CategoryArrays : public Categories, public testing::WithParamInterface<ShortList> {};

TEST_P(CategoryArrays, ThatAreTooShortAreTold) {
  answerBoxes(1);
  EXPECT_EQ(fill(GetParam().list).back(), categoryBox("Subscript out of range"));
  EXPECT_TRUE(library.state.gFormLoaded[catalogIndex]);
}

INSTANTIATE_TEST_SUITE_P(
    Arrays, CategoryArrays,
    testing::Values(ShortList{"names", without([](CategoryList& l) { l.categoryNames.elements.pop_back(); })},
                    ShortList{"counts", without([](CategoryList& l) { l.subCategoryCounts.elements.pop_back(); })},
                    ShortList{"last", without([](CategoryList& l) { l.lastCategory = 2; })},
                    ShortList{"counted from 1", without([](CategoryList& l) { l.categoryNames.lowerBound = 1; })}));

TEST_F(Categories, MoreNamesThanAShortCounterCountsOverflow) {
  answerBoxes(1);
  CategoryList list = listOf({32767, 2});
  EXPECT_EQ(fill(list).back(), categoryBox("Overflow"));
  EXPECT_EQ(subMenu(1).size(), 32767U);
}

TEST_F(Categories, AFailingComponentIsToldAndTheCatalogLoadsOn) {
  platform.search.categories = []() -> CategoryList { throw Error(513, "No database"); };
  platform.registry.keys["Software\\Tarnwell\\Zephra"].push_back({"Expansion", "1"});
  answerBoxes(1);
  create();
  EXPECT_THAT(takeBoxes(), ElementsAre(categoryBox("No database")));
  EXPECT_TRUE(library.state.gFormLoaded[catalogIndex]);
  EXPECT_EQ(menu().inSight("mnuMaster").size(), 1U);
}

TEST_F(Categories, AMissingComponentIsToldOnce) {
  platform.search.installed = false;
  answerBoxes(1);
  create();
  EXPECT_THAT(takeBoxes(), ElementsAre(categoryBox("ActiveX component can't create object")));
}

TEST_F(Categories, StartFromTheDesignedMenuWhenTheCatalogIsLoadedAgain) {
  fill(listOf({3, 1}));
  init();
  control->ToolbarDispose();
  platform.search.categories = [] { return listOf({1}); };
  library.browser.load();
  EXPECT_THAT(menu().inSight("mnuCategory"), ElementsAre("Surprise Me", "C1"));
  EXPECT_THAT(subMenu(1), ElementsAre("C1.0"));
}

class CategorySearch : public Categories, public testing::WithParamInterface<int> {};

TEST_P(CategorySearch, SearchesForTheCaptionOfAnyElement) {
  platform.search.categories = [] { return listOf(std::vector<std::int16_t>(16, 2)); };
  open();
  EXPECT_TRUE(choose("mnuSubCategory" + std::to_string(GetParam()), 1));
  const std::string query = ":C" + std::to_string(GetParam()) + ".1";
  EXPECT_EQ(searchBox().content, query);
  const Lines lines = take();
  EXPECT_THAT(lines, Contains("search component: search " + query));
  EXPECT_THAT(menu().inSight("mnuSearch"), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Menus, CategorySearch, testing::Range(1, 16));

TEST_F(Categories, TheOneWithoutAMenuDoesNothing) {
  platform.search.categories = [] { return listOf(std::vector<std::int16_t>(16, 2)); };
  open();
  EXPECT_TRUE(choose("mnuCategory", 16));
  EXPECT_FALSE(choose("mnuCategory", 1));
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(Categories, AnyCaptionIsSentAsItIs) {
  CategoryList list = listOf({1});
  list.subCategoryNames.elements = {"Salt & \"Pepper\" 100%"};
  platform.search.categories = [list] { return list; };
  open();
  choose("mnuSubCategory1");
  EXPECT_THAT(take(), Contains("search component: search :Salt & \"Pepper\" 100%"));
}

}  // namespace
}  // namespace nerida

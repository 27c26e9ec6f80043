// The engine library by its exported names, as a client of any language declares them.
#include <gtest/gtest.h>

#include <thread>

#include "host/search/kwsearch/kw_search_dll.h"
#include "host/search/model_database.h"
#include "tests/windows/search/search_files.h"

namespace nerida::host {
namespace {

struct Result {
  long status = 0;
  std::string name;
  long number = 0, flags = 0, closeness = 0;
};

class EngineLibrary : public testing::Test {
 protected:
  template <typename Function>
  Function* entry(Function*, const char* name) {
    return library.entry<Function>(name);
  }
#define ENTRY(name) entry(&::name, #name)

  void open() {
    ASSERT_EQ(ENTRY(SetModelDataBasePath)(files.database().string().c_str()), kwNone);
    ASSERT_EQ(ENTRY(SetThesaurusPath)((files.path() / "Thesaurus.txt").string().c_str()), kwNone);
    ASSERT_EQ(ENTRY(SetUserThesaurusPath)((files.path() / "mine.txt").string().c_str()), kwNone);
    ASSERT_EQ(ENTRY(OpenSearchEngine)(), kwNone);
  }
  void TearDown() override { EXPECT_EQ(ENTRY(CloseSearchEngine)(), kwNone); }

  Result next(long size = 500) {
    Result result;
    std::string name(static_cast<std::size_t>(size) + 1, '#');
    result.status = ENTRY(GetNextResult)(name.data(), size, &result.number, &result.flags, &result.closeness);
    EXPECT_EQ(name.back(), '#') << "written past the end";
    result.name = name.substr(0, name.find('\0'));
    return result;
  }

  const SearchFiles files;
  const Module library{componentFile().replace_filename("KwSearchDll.dll")};
};

TEST_F(EngineLibrary, AddsOne) {
  EXPECT_EQ(ENTRY(AddOneTest)(41), 42);
  EXPECT_EQ(ENTRY(AddOneTest)(-1), 0);
}

TEST_F(EngineLibrary, GivesResultsOneByOne) {
  open();
  EXPECT_EQ(ENTRY(StartSearch)("boat"), 2);
  Result result = next();
  EXPECT_EQ(result.status, kwOne);
  EXPECT_EQ(result.name, "Sailing Boat");
  EXPECT_EQ(result.number, 1);
  EXPECT_EQ(result.flags, 0);
  result = next();
  EXPECT_EQ(result.name, "Steamer");
  EXPECT_EQ(result.flags, 0x20);
  EXPECT_EQ(next().status, kwNone);
  EXPECT_EQ(next().status, kwNone);
}

TEST_F(EngineLibrary, TellsHowAResultWasFound) {
  open();
  EXPECT_EQ(ENTRY(StartSearch)("car"), 1);
  EXPECT_EQ(next().closeness, 0);
  EXPECT_EQ(ENTRY(StartSearch)("automobile"), 1);
  EXPECT_EQ(next().closeness, 1);
  EXPECT_EQ(ENTRY(StartSearch)("saliing"), 1);
  EXPECT_EQ(next().closeness, 2);
}

TEST_F(EngineLibrary, UsesTheUsersThesaurus) {
  files.write("mine.txt", "jalopy, car\n");
  open();
  EXPECT_EQ(ENTRY(StartSearch)("jalopy"), 1);
}

TEST_F(EngineLibrary, GivesARandomSelectionOfTheWantedSize) {
  open();
  EXPECT_EQ(ENTRY(StartRandomSearch)(3), 3);
  EXPECT_EQ(ENTRY(StartRandomSearch)(100), 5);
  EXPECT_EQ(ENTRY(StartRandomSearch)(2000000000), 5);
  EXPECT_EQ(ENTRY(StartRandomSearch)(0), 0);
  EXPECT_EQ(ENTRY(StartRandomSearch)(-1), kwBadArgument);
}

TEST_F(EngineLibrary, SearchesACategory) {
  open();
  EXPECT_EQ(ENTRY(StartCategorySearch)("Ships"), 2);
  EXPECT_EQ(next().name, "Sailing Boat");
  EXPECT_EQ(ENTRY(StartCategorySearch)(""), 0);
}

TEST_F(EngineLibrary, ListsPairsOfCategories) {
  open();
  std::vector<std::string> pairs;
  char category[50], subcategory[50];
  for (long status = ENTRY(GetFirstCategory)(category, subcategory, 50); status == kwOne;
       status = ENTRY(GetNextCategory)(category, subcategory, 50)) {
    pairs.push_back(std::string(category) + "/" + subcategory);
  }
  EXPECT_EQ(pairs, (std::vector<std::string>{"Buildings/Houses", "Shapes/", "Transport/Cars", "Transport/Ships"}));
}

TEST_F(EngineLibrary, KeepsAResultThatDoesNotFit) {
  open();
  ENTRY(StartSearch)("sailing");
  EXPECT_EQ(next(12).status, kwBufferTooSmall);
  EXPECT_EQ(next(0).status, kwBufferTooSmall);
  EXPECT_EQ(next(13).name, "Sailing Boat");
  char category[10], subcategory[10];
  EXPECT_EQ(ENTRY(GetFirstCategory)(category, subcategory, 9), kwBufferTooSmall);
  EXPECT_EQ(ENTRY(GetNextCategory)(category, subcategory, 10), kwOne);
  EXPECT_STREQ(category, "Buildings");
}

TEST_F(EngineLibrary, GivesOnlyWhatIsWanted) {
  open();
  ENTRY(StartSearch)("sailing");
  EXPECT_EQ(ENTRY(GetNextResult)(nullptr, 0, nullptr, nullptr, nullptr), kwOne);
}

TEST_F(EngineLibrary, KeepsEveryLetterOfAName) {
  open();
  ENTRY(StartSearch)("cafe");
  EXPECT_EQ(next().name, usualCards()[3].name);
}

TEST_F(EngineLibrary, MustBeOpenedFirst) {
  EXPECT_EQ(ENTRY(StartSearch)("boat"), kwNotOpen);
  EXPECT_EQ(ENTRY(StartRandomSearch)(3), kwNotOpen);
  EXPECT_EQ(ENTRY(StartCategorySearch)("Ships"), kwNotOpen);
  EXPECT_EQ(next().status, kwNotOpen);
  EXPECT_EQ(ENTRY(GetFirstCategory)(nullptr, nullptr, 0), kwNotOpen);
  EXPECT_EQ(ENTRY(GetNextCategory)(nullptr, nullptr, 0), kwNotOpen);
}

TEST_F(EngineLibrary, RefusesNullTexts) {
  open();
  EXPECT_EQ(ENTRY(SetModelDataBasePath)(nullptr), kwBadArgument);
  EXPECT_EQ(ENTRY(SetThesaurusPath)(nullptr), kwBadArgument);
  EXPECT_EQ(ENTRY(SetUserThesaurusPath)(nullptr), kwBadArgument);
  EXPECT_EQ(ENTRY(StartSearch)(nullptr), kwBadArgument);
  EXPECT_EQ(ENTRY(StartCategorySearch)(nullptr), kwBadArgument);
}

TEST_F(EngineLibrary, TellsWhatIsWrongWithTheDatabase) {
  EXPECT_EQ(ENTRY(OpenSearchEngine)(), kwDatabaseMissing) << "no path was set";
  ENTRY(SetModelDataBasePath)(files.database().string().c_str());
  files.removeDatabase();
  EXPECT_EQ(ENTRY(OpenSearchEngine)(), kwDatabaseMissing);
  files.write(search::databaseFileName, std::string(5000, 'x'));
  EXPECT_EQ(ENTRY(OpenSearchEngine)(), kwDatabaseForeign);
  EXPECT_EQ(ENTRY(StartSearch)("boat"), kwNotOpen);
  EXPECT_EQ(ENTRY(SetModelDataBasePath)("\xFF\xFE\xC0"), kwBadArgument) << "no text";
}

TEST_F(EngineLibrary, IsAnotherOneInEachThread) {
  open();
  ENTRY(StartSearch)("boat");
  std::thread other([&] {
    EXPECT_EQ(ENTRY(StartSearch)("car"), kwNotOpen);
    open();
    EXPECT_EQ(ENTRY(StartSearch)("car"), 1);
    EXPECT_EQ(next().name, "Red Car");
    // The thread ends without closing.
  });
  other.join();
  EXPECT_EQ(next().name, "Sailing Boat");
}

}  // namespace
}  // namespace nerida::host

// Searching in the catalog: the three ways to search, what is listed, and how a search ends.
#include "tests/unit/catalog_desk.h"

namespace nerida {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class CatalogSearch : public CatalogTest {
 protected:
  // What the search component was asked.
  Lines queries() {
    Lines lines = take();
    std::erase_if(lines, [](const std::string& line) { return !line.starts_with("search component: search"); });
    return lines;
  }
};

TEST_F(CatalogSearch, ListsTheHitsAndPreviewsTheFirst) {
  searchBox().enter("mill");
  EXPECT_THAT(take(),
              ElementsAre("pointer 11", "lstModels: clear", "search component: create", "search component: search mill",
                          "lblResults: caption  Search Results (2)", "lstModels: add", "lstModels: select 0",
                          "list " + windmillFile, "zephBrowser: ModelFile = " + windmillFile,
                          "zephBrowser: ModelName = Windmill", "lblModel: caption Windmill ", "zephBrowser: Load",
                          "lstModels: refresh", "search component: release", "pointer 0", "mnuSearch(1): load",
                          "mnuSearch(1): caption Previous Search", "mnuSearch(1): visible",
                          "mnuSearch(0): caption mill", "mnuSearch(0): visible"));
  EXPECT_THAT(hits().entries, ElementsAre(ListItem{"Windmill", "42", 0}, ListItem{"Ship", "12345", 1}));
  EXPECT_EQ(hits().selected(), 0);
}

TEST_F(CatalogSearch, TheSearchButtonSearchesLikeEnter) {
  searchBox().content = "ship";
  catalog().pushButton("cmdBrowse", 0).press();
  EXPECT_THAT(queries(), ElementsAre("search component: search ship"));
  EXPECT_THAT(menu().inSight("mnuSearch"), ElementsAre("ship", "Previous Search"));
}

TEST_F(CatalogSearch, TheHelpButtonOpensHelp) {
  catalog().pushButton("cmdBrowse", 2).press();
  EXPECT_THAT(take(), ElementsAre("help C:\\Zephra\\Help\\Zephra.hlp"));
}

TEST_F(CatalogSearch, AnUntouchedBoxGivesASurprise) {
  catalog().pushButton("cmdBrowse", 0).press();
  EXPECT_THAT(queries(), ElementsAre("search component: search :Random"));
  EXPECT_EQ(searchBox().content, ":Surprise Me");
  EXPECT_EQ(menu().caption("mnuSearch", 0), ":Surprise Me");
}

TEST_F(CatalogSearch, ASurpriseStandsInTheBoxBeforeItIsLookedForAndReachesTheCallerAsARandomQuery) {
  platform.search.search = [](std::string&) { return SearchResult(); };
  for (const char* text : {"Enter Keyword(s) for Model Search", ":Surprise Me"}) {
    std::string query = text;
    library.browser.DictionarySearch(query);
    EXPECT_EQ(query, ":Random");
    EXPECT_THAT(take(),
                ElementsAre("pointer 11", "txtSearch: text :Surprise Me", "lstModels: clear",
                            "search component: create", "search component: search :Random",
                            "lblResults: caption  Search Results (0)", "search component: release", "pointer 0"));
  }
}

TEST_F(CatalogSearch, TypingTheSurpriseQueryGivesASurprise) {
  searchBox().enter(":Surprise Me");
  EXPECT_THAT(queries(), ElementsAre("search component: search :Random"));
}

TEST_F(CatalogSearch, SurpriseMeIsChosenFromTheCategoriesAndNotRemembered) {
  EXPECT_TRUE(choose("mnuCategory"));
  EXPECT_THAT(queries(), ElementsAre("search component: search :Random"));
  EXPECT_EQ(searchBox().content, ":Surprise Me");
  EXPECT_THAT(menu().inSight("mnuSearch"), IsEmpty());
}

TEST_F(CatalogSearch, TheRandomQueryIsSentAsTyped) {
  searchBox().enter(":Random");
  EXPECT_THAT(queries(), ElementsAre("search component: search :Random"));
  EXPECT_EQ(searchBox().content, ":Random");
}

struct QueryCase {
  const char* typed;
  const char* sent;
};

class CatalogQuery : public CatalogSearch, public testing::WithParamInterface<QueryCase> {};

TEST_P(CatalogQuery, IsSentAsItStands) {
  searchBox().enter(GetParam().typed);
  EXPECT_THAT(queries(), ElementsAre(std::string("search component: search ") + GetParam().sent));
}

INSTANTIATE_TEST_SUITE_P(Texts, CatalogQuery,
                         testing::Values(QueryCase{":Boats", ":Boats"}, QueryCase{" ", " "}, QueryCase{":", ":"},
                                         QueryCase{":surprise me", ":surprise me"},
                                         QueryCase{"Previous Search", "Previous Search"},
                                         QueryCase{"\"a' %b", "\"a' %b"}));

TEST_F(CatalogSearch, AnEmptyBoxDoesNothing) {
  findWindmill();
  searchBox().enter("");
  EXPECT_THAT(take(), IsEmpty());
  EXPECT_EQ(hits().count(), 2);
}

TEST_F(CatalogSearch, ARewrittenQueryReachesTheCallerAndNotTheBox) {
  platform.search.search = [](std::string& query) {
    query = "corrected";
    return SearchResult();
  };
  searchBox().content = "mistyped";
  std::string query = "mistyped";
  library.browser.DictionarySearch(query);
  EXPECT_EQ(query, "corrected");
  EXPECT_EQ(searchBox().content, "mistyped");
}

TEST_F(CatalogSearch, WithoutHitsLeavesAnEmptyListAndThePreview) {
  findWindmill();
  platform.search.search = [](std::string&) { return SearchResult(); };
  searchBox().enter("nothing");
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_EQ(hits().count(), 0);
  EXPECT_EQ(hits().selected(), -1);
  EXPECT_EQ(resultsCaption(), " Search Results (0)");
  EXPECT_EQ(preview().model, "Windmill");
}

TEST_F(CatalogSearch, ANegativeCountIsShownAndListsNothing) {
  platform.search.search = [](std::string&) { return SearchResult{{}, {}, {}, -3}; };
  searchBox().enter("odd");
  EXPECT_EQ(resultsCaption(), " Search Results (-3)");
  EXPECT_EQ(hits().count(), 0);
}

TEST_F(CatalogSearch, OnlyTheBitOfAnimationGivesAnIcon) {
  platform.search.search = [](std::string&) {
    return hitsOf({"a", "b", "c", "d"}, {1, 2, -3, 2147483647}, {0x1F, 0x20, -1, 0x40});
  };
  answerBoxes(1);
  searchBox().enter("x");
  EXPECT_THAT(hits().entries, ElementsAre(ListItem{"a", "1", 0}, ListItem{"b", "2", 1}, ListItem{"c", "-3", 1},
                                          ListItem{"d", "2147483647", 0}));
}

TEST_F(CatalogSearch, EveryHitThatAShortCounterCanCountIsListed) {
  const std::size_t most = 32767;
  platform.search.search = [&](std::string&) {
    return hitsOf(std::vector<std::string>(most, "Windmill"), std::vector<std::int32_t>(most, 42),
                  std::vector<std::int32_t>(most, 0));
  };
  searchBox().enter("all");
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_EQ(hits().count(), 32767);
  EXPECT_EQ(hits().selected(), 0);
}

TEST_F(CatalogSearch, OneHitMoreOverflowsAfterListingThoseBefore) {
  const std::size_t tooMany = 32768;
  platform.search.search = [&](std::string&) {
    return hitsOf(std::vector<std::string>(tooMany, "Windmill"), std::vector<std::int32_t>(tooMany, 42),
                  std::vector<std::int32_t>(tooMany, 0));
  };
  answerBoxes(1);
  searchBox().enter("all");
  EXPECT_THAT(takeBoxes(), ElementsAre(searchBoxOf("Overflow")));
  EXPECT_EQ(hits().count(), 32768);
  EXPECT_EQ(hits().selected(), -1);
  EXPECT_EQ(resultsCaption(), " Search Results (32768)");
  EXPECT_EQ(platform.screen.pointer, MousePointer::standard);
}

TEST_F(CatalogSearch, AFailingComponentIsToldUnderTheHourglassAndReleasedAfterwards) {
  findWindmill();
  platform.search.search = [](std::string&) -> SearchResult { throw Error(513, "The database is locked."); };
  answerBoxes(1);
  searchBox().enter("ship");
  EXPECT_THAT(take(),
              ElementsAre("pointer 11", "lstModels: clear", "search component: create", "search component: search ship",
                          searchBoxOf("The database is locked."), "search component: release", "pointer 0",
                          "mnuSearch(2): load", "mnuSearch(2): caption Previous Search", "mnuSearch(2): visible",
                          "mnuSearch(1): caption mill", "mnuSearch(1): visible", "mnuSearch(0): caption ship",
                          "mnuSearch(0): visible"));
  EXPECT_EQ(resultsCaption(), " Search Results (2)");
}

TEST_F(CatalogSearch, AMissingComponentIsToldAtEverySearch) {
  platform.search.installed = false;
  answerBoxes(2);
  searchBox().enter("a");
  searchBox().enter("b");
  EXPECT_THAT(takeBoxes(), ElementsAre(searchBoxOf("ActiveX component can't create object"),
                                       searchBoxOf("ActiveX component can't create object")));
  EXPECT_EQ(platform.screen.pointer, MousePointer::standard);
}

struct ShortCase {
  const char* what;
  SearchResult hits;
  int listed;
};

void PrintTo(const ShortCase& shortCase, std::ostream* out) { *out << shortCase.what; }

class CatalogShortArrays : public CatalogSearch, public testing::WithParamInterface<ShortCase> {};

TEST_P(CatalogShortArrays, EndTheSearchWhereTheyEnd) {
  platform.search.search = [](std::string&) { return GetParam().hits; };
  answerBoxes(1);
  searchBox().enter("x");
  EXPECT_THAT(takeBoxes(), ElementsAre(searchBoxOf("Subscript out of range")));
  EXPECT_EQ(hits().count(), GetParam().listed);
  EXPECT_EQ(hits().selected(), -1);
}

INSTANTIATE_TEST_SUITE_P(Arrays, CatalogShortArrays,
                         testing::Values(ShortCase{"names", {{0, {"a"}}, {0, {1, 2}}, {0, {0, 0}}, 2}, 1},
                                         ShortCase{"ids", {{0, {"a", "b"}}, {0, {1}}, {0, {0, 0}}, 2}, 2},
                                         ShortCase{"flags", {{0, {"a", "b"}}, {0, {1, 2}}, {0, {0}}, 2}, 1},
                                         ShortCase{"none", {{}, {}, {}, 1}, 0},
                                         ShortCase{
                                             "counted from 1", {{1, {"a", "b"}}, {0, {1, 2}}, {0, {0, 0}}, 2}, 0}));

TEST_F(CatalogSearch, LongerArraysAreReadToTheCount) {
  platform.search.search = [](std::string&) {
    SearchResult hits = hitsOf({"Windmill", "Ship", "Hat"}, {42, 12345, 1}, {0, 0, 0});
    hits.count = 1;
    return hits;
  };
  searchBox().enter("x");
  EXPECT_EQ(hits().count(), 1);
}

TEST_F(CatalogSearch, AListThatFailsKeepsWhatItHas) {
  hits().beforeAdd = [this](const ListItem&) {
    if (hits().count() == 1) throw Error(error::outOfMemory);
  };
  answerBoxes(1);
  searchBox().enter("x");
  EXPECT_THAT(takeBoxes(), ElementsAre(searchBoxOf("Out of memory")));
  EXPECT_EQ(hits().count(), 1);
}

TEST_F(CatalogSearch, AFirstHitThatIsPreviewedAlreadyIsNotLoadedAgain) {
  findWindmill();
  searchBox().enter("mill again");
  EXPECT_THAT(take(), Not(Contains("zephBrowser: Load")));
}

TEST_F(CatalogSearch, AFirstHitThatCannotBeShownDoesNotEndTheSearch) {
  platform.files.files.clear();
  answerBoxes(1);
  searchBox().enter("mill");
  EXPECT_THAT(take(), Contains("lstModels: refresh"));
  EXPECT_EQ(hits().count(), 2);
}

class CatalogOnCd : public CatalogSearch {
 protected:
  void SetUp() override {
    platform.registry.keys["Software\\Tarnwell\\Zephra\\1.0"] = {{"Version", "1"}};
    platform.registry.keys["Software\\Tarnwell\\Zephra"].push_back({"DefDir", "\\library"});
    open();
  }
};

TEST_F(CatalogOnCd, TheLibraryIsLookedForOnceAndKept) {
  platform.files.drives["e:"] = DriveType::cdRom;
  platform.files.files.insert("e:\\library\\graphics\\index.txt");
  platform.files.files.insert("e:\\library\\Graphics\\dv0000\\dv0000\\dv0040\\dv42.twe");
  searchBox().enter("mill");
  EXPECT_EQ(library.paths.ModelLibraryPath, "e:\\library\\Graphics");
  EXPECT_EQ(preview().file, "e:\\library\\Graphics\\dv0000\\dv0000\\dv0040\\dv42.twe");
  take();
  searchBox().enter("mill again");
  EXPECT_THAT(take(), Not(Contains("list e:\\library\\graphics\\")));
}

TEST_F(CatalogOnCd, WithoutTheCdNothingIsSearchedButTheTextIsRemembered) {
  platform.boxes.answers = {PromptAnswer::cancel, PromptAnswer::ok};
  searchBox().enter("mill");
  const Lines lines = take();
  EXPECT_THAT(lines, Not(Contains("pointer 11")));
  EXPECT_THAT(lines, Not(Contains("lstModels: clear")));
  EXPECT_THAT(lines, Contains("mnuSearch(0): caption mill"));
  EXPECT_EQ(library.paths.ModelLibraryPath, "");

  platform.boxes.answers = {PromptAnswer::cancel, PromptAnswer::ok};
  choose("mnuCategory");
  EXPECT_EQ(takeBoxes().size(), 2U);  // asked again
  EXPECT_EQ(searchBox().content, ":Surprise Me");
}

TEST_F(CatalogOnCd, AnEmptyBoxDoesNotAskForTheCd) {
  searchBox().enter("");
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(CatalogSearch, AFormThatGoesUnderAMessageIsNotTouchedAgain) {
  platform.search.installed = false;
  platform.boxes.duringBox = [this] { control->ToolbarDispose(); };
  answerBoxes(1);
  searchBox().enter("mill");
  EXPECT_EQ(takeBoxes().size(), 1U);
  EXPECT_TRUE(platform.windows.living.empty());
  EXPECT_EQ(platform.screen.pointer, MousePointer::standard);
}

}  // namespace
}  // namespace nerida

// The catalog's window: loading and unloading, showing and hiding, its menu's small commands.
#include "tests/unit/catalog_desk.h"

namespace nerida {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string loadBox(const std::string& failure) {
  return "box [Zephra Catalog] Error loading the browser settings : " + failure;
}

class CatalogLoad : public CatalogTest {
 protected:
  void SetUp() override {}
  void setExpansion() { platform.registry.keys["Software\\Tarnwell\\Zephra"].push_back({"Expansion", ""}); }
  // From the catalog's own load on.
  Lines load() {
    create();
    Lines lines = take();
    lines.erase(lines.begin(), std::ranges::find(lines, "frmBrowser: load"));
    return lines;
  }
};

TEST_F(CatalogLoad, ReadsSearchesCategoriesAndLogoInThisOrder) {
  store("Search0", "boat");
  store("Search1", "tree & bush");
  setExpansion();
  EXPECT_THAT(load(), ElementsAre("frmBrowser: load", "mnuSearch(0): caption boat", "mnuSearch(0): visible",
                                  "mnuSearch(1): load", "mnuSearch(1): caption tree & bush", "mnuSearch(1): visible",
                                  "search component: create", "search component: categories",
                                  "search component: release", "picture C:\\Zephra\\zpcatbut.bmp", "mnuDiv(0): visible",
                                  "mnuMaster(0): visible", "mnuMaster(0): enabled", "pointer 0"));
  EXPECT_TRUE(library.state.gFormLoaded[catalogIndex]);
  EXPECT_FALSE(library.state.gFormShown[catalogIndex]);
}

TEST_F(CatalogLoad, WithoutAnExpansionKeepsItsEntriesHidden) {
  load();
  EXPECT_THAT(menu().inSight("mnuMaster"), IsEmpty());
  EXPECT_THAT(menu().inSight("mnuDiv"), IsEmpty());
  EXPECT_FALSE(choose("mnuMaster"));
}

TEST_F(CatalogLoad, WithoutStoredSearchesShowsNone) {
  EXPECT_THAT(load(), Not(Contains(HasSubstr("mnuSearch"))));
  EXPECT_THAT(menu().inSight("mnuSearch"), IsEmpty());
}

TEST_F(CatalogLoad, ReadsFurtherSearchesAlsoWithoutTheFirst) {
  store("Search1", "one");
  store("Search2", "two");
  store("Search4", "behind a gap");
  load();
  EXPECT_THAT(menu().inSight("mnuSearch"), ElementsAre("one", "two"));
}

TEST_F(CatalogLoad, ReadsAsManySearchesAsAreStored) {
  for (int i = 0; i < 12; ++i) store("Search" + std::to_string(i), "s" + std::to_string(i));
  load();
  EXPECT_EQ(menu().inSight("mnuSearch").size(), 12U);
}

TEST_F(CatalogLoad, AnEmptyStoredTextEndsTheReading) {
  store("Search0", "a");
  store("Search1", "");
  store("Search2", "c");
  load();
  EXPECT_THAT(menu().inSight("mnuSearch"), ElementsAre("a"));
}

TEST_F(CatalogLoad, AMissingLogoIsToldAndTheRestIsSkipped) {
  platform.files.files.clear();
  setExpansion();
  answerBoxes(1);
  load();
  EXPECT_THAT(menu().inSight("mnuMaster"), IsEmpty());
  EXPECT_TRUE(library.state.gFormLoaded[catalogIndex]);
}

TEST_F(CatalogLoad, TellsWhatIsWrongWithTheLogo) {
  platform.files.files.clear();
  answerBoxes(1);
  create();
  EXPECT_THAT(takeBoxes(), ElementsAre(loadBox("File not found")));
  control.reset();
  platform.files.files = {"C:\\Zephra\\zpcatbut.bmp"};
  platform.files.pictures.clear();
  answerBoxes(1);
  create();
  EXPECT_THAT(takeBoxes(), ElementsAre(loadBox("Invalid picture")));
}

TEST_F(CatalogLoad, ACatalogWhoseLogoIsMissingStillSearches) {
  platform.files.files.erase("C:\\Zephra\\zpcatbut.bmp");
  answerBoxes(1);
  open();
  searchBox().enter("mill");
  EXPECT_EQ(hits().count(), 2);
}

class CatalogSecondLoad : public CatalogTest {
 protected:
  void SetUp() override {
    open();
    control->ToolbarDispose();
    init();
  }
};

TEST_F(CatalogSecondLoad, AnswersItsUserAgain) {
  control->ShowCatalog();
  searchBox().enter("mill");
  EXPECT_EQ(hits().count(), 2);
  catalog().pushButton("cmdInsert", 0).press();
  EXPECT_EQ(take().back(), "model: RefreshDisplay");
}

TEST_F(CatalogSecondLoad, DoesNotShowALogoThatHasGone) {
  platform.files.files.erase("C:\\Zephra\\zpcatbut.bmp");
  answerBoxes(1);
  control->ShowCatalog();
  EXPECT_EQ(catalog().stillPicture("picLogo").picture, nullptr);
}

TEST_F(CatalogSecondLoad, GoesWhenItIsDisposedOfUnderItsOwnMessage) {
  platform.files.files.erase("C:\\Zephra\\zpcatbut.bmp");
  platform.boxes.duringBox = [this] { control->ToolbarDispose(); };
  answerBoxes(1);
  EXPECT_EQ(control->ShowCatalog(), -1);
  EXPECT_FALSE(library.state.gFormLoaded[catalogIndex]);
  EXPECT_TRUE(platform.windows.living.empty());
}

class CatalogShow : public CatalogTest {};

TEST_F(CatalogShow, AgainWhileItIsShownKeepsTheSearchBox) {
  searchBox().enter("mill");
  take();
  library.browser.ShowSelf();
  EXPECT_THAT(take(), ElementsAre("model: GetLookStyleList ByRef Empty, ByRef Empty, ByRef Empty", "cmbStyles: clear",
                                  "cmbStyles: add Basic Draw", "cmbStyles: add Shaded", "cmbStyles: add Ink Outline",
                                  "model: LookStyleName", "cmbStyles: select 1", "frmBrowser: show topmost",
                                  "model: IsCatalogShowing = True"));
  EXPECT_EQ(searchBox().content, "mill");
}

TEST_F(CatalogShow, AgainAfterClosingStartsFromThePromptAndKeepsTheRest) {
  searchBox().enter("mill");
  catalog().userCloses();
  control->ShowCatalog();
  EXPECT_EQ(searchBox().content, "Enter Keyword(s) for Model Search");
  EXPECT_EQ(hits().count(), 2);
  EXPECT_THAT(menu().inSight("mnuSearch"), ElementsAre("mill", "Previous Search"));
}

TEST_F(CatalogShow, ACustomStyleIsListedLastAndSelected) {
  model->values["LookStyleName"] = std::string("none");
  library.browser.ShowSelf();
  const headless::Combo& styles = catalog().combo("cmbStyles");
  EXPECT_THAT(styles.entries, ElementsAre("Basic Draw", "Shaded", "Ink Outline", "Custom Style"));
  EXPECT_EQ(styles.selected(), 3);
}

TEST_F(CatalogShow, AStyleThatIsNotListedIsNotSelected) {
  model->values["LookStyleName"] = std::string("shaded");
  library.browser.ShowSelf();
  EXPECT_EQ(catalog().combo("cmbStyles").selected(), -1);
}

TEST_F(CatalogShow, AChosenStyleIsSentAndDrawn) {
  catalog().combo("cmbStyles").choose("Ink Outline");
  EXPECT_THAT(takeModelCalls(), ElementsAre("model: LookStyle = \"Ink Outline\"", "model: RefreshDisplay"));
  catalog().combo("cmbStyles").choose("Basic Draw");
  EXPECT_THAT(takeModelCalls(), ElementsAre("model: LookStyle = \"Basic Draw\"", "model: RefreshDisplay"));
}

TEST_F(CatalogShow, TheCustomStyleIsSentWithoutAName) {
  model->values["LookStyleName"] = std::string("none");
  library.browser.ShowSelf();
  catalog().combo("cmbStyles").choose("Shaded");
  take();
  catalog().combo("cmbStyles").choose("Custom Style");
  EXPECT_THAT(takeModelCalls(), ElementsAre("model: LookStyle = \"\"", "model: RefreshDisplay"));
}

TEST_F(CatalogShow, ARefusedStyleIsTold) {
  model->failures.emplace("LookStyle", Error(5));
  answerBoxes(1);
  catalog().combo("cmbStyles").choose("Ink Outline");
  EXPECT_THAT(takeBoxes(), ElementsAre(errorBox));
}

class CatalogShowFailure : public CatalogTest, public testing::WithParamInterface<const char*> {};

TEST_P(CatalogShowFailure, IsToldAndTheModelHearsThatItIsClosed) {
  catalog().userCloses();
  model->failures.emplace(GetParam(), Error(500, "Broken"));
  take();
  answerBoxes(1);
  library.browser.ShowSelf();
  const Lines lines = take();
  ASSERT_GE(lines.size(), 4U);
  EXPECT_THAT(Lines(lines.end() - 4, lines.end()),
              ElementsAre("box [Zephra Toolbar] Error showing Model Catalog: Broken", "frmBrowser: hide",
                          "model: IsCatalogShowing = False", "model: DoneShowingModelCatalog = True"));
  EXPECT_FALSE(control->IsCatalogVisible());
  EXPECT_FALSE(library.state.gFormShown[catalogIndex]);
}

INSTANTIATE_TEST_SUITE_P(Members, CatalogShowFailure,
                         testing::Values("GetLookStyleList", "LookStyleName", "IsCatalogShowing"));

class CatalogHide : public CatalogTest {};

TEST_F(CatalogHide, SavesHidesAndTells) {
  for (const char* text : {"mill", "ship"}) searchBox().enter(text);
  take();
  EXPECT_TRUE(choose("mnuExit"));
  EXPECT_THAT(take(),
              ElementsAre("frmBrowser: hide", "model: ModelName", "frmToolbar: caption Zephra Toolbar: Windmill",
                          "model: IsCatalogShowing = False", "model: DoneShowingModelCatalog = True"));
  EXPECT_EQ(stored(), (std::map<std::string, std::string>{{"Search0", "ship"}, {"Search1", "mill"}}));
}

TEST_F(CatalogHide, GoesThroughAllOfItAndTellsTheFirstFailure) {
  for (const char* member : {"ModelName", "IsCatalogShowing", "DoneShowingModelCatalog"}) {
    model->failures.emplace(member, Error(5));
  }
  answerBoxes(1);
  choose("mnuExit");
  EXPECT_THAT(take(), ElementsAre("frmBrowser: hide", "model: ModelName", errorBox, "model: IsCatalogShowing = False",
                                  "model: DoneShowingModelCatalog = True"));
  EXPECT_FALSE(library.state.gFormShown[catalogIndex]);
}

TEST_F(CatalogHide, UnloadingSavesAndTellsToo) {
  searchBox().enter("mill");
  take();
  control->ToolbarDispose();
  EXPECT_EQ(stored(), (std::map<std::string, std::string>{{"Search0", "mill"}}));
  EXPECT_FALSE(library.state.gFormLoaded[catalogIndex]);
}

TEST_F(CatalogHide, UnloadingWithoutAModelSavesQuietly) {
  searchBox().enter("mill");
  library.state.gModelObject.reset();
  take();
  control.reset();
  EXPECT_EQ(stored(), (std::map<std::string, std::string>{{"Search0", "mill"}}));
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

// What the recent searches come to after some were made, and what is stored of them.
class RecentSearchMenu : public CatalogTest {
 protected:
  void search(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) searchBox().enter(text);
    take();
  }
  std::vector<std::string> shown() { return menu().inSight("mnuSearch"); }
};

TEST_F(RecentSearchMenu, ShowsTheNewestFirst) {
  search({"a", "b", "c"});
  EXPECT_THAT(shown(), ElementsAre("c", "b", "a", "Previous Search"));
}

TEST_F(RecentSearchMenu, HoldsFiveAndDropsTheOldest) {
  search({"a", "b", "c", "d"});
  EXPECT_THAT(shown(), ElementsAre("d", "c", "b", "a", "Previous Search"));
  search({"e", "f"});
  EXPECT_THAT(shown(), ElementsAre("f", "e", "d", "c", "b"));
}

TEST_F(RecentSearchMenu, AKnownTextChangesPlacesWithTheNewest) {
  search({"a", "b", "c"});
  searchBox().enter("a");
  EXPECT_THAT(shown(), ElementsAre("a", "b", "c", "Previous Search"));
  const Lines lines = take();
  EXPECT_THAT(Lines(lines.end() - 2, lines.end()), ElementsAre("mnuSearch(2): caption c", "mnuSearch(0): caption a"));
  search({"a"});
  EXPECT_THAT(shown(), ElementsAre("a", "b", "c", "Previous Search"));
}

TEST_F(RecentSearchMenu, TellsCapitalsFromSmallLetters) {
  search({"a", "A"});
  EXPECT_THAT(shown(), ElementsAre("A", "a", "Previous Search"));
}

TEST_F(RecentSearchMenu, ThePlaceholderTypedIsNeverStored) {
  search({"Previous Search"});
  EXPECT_THAT(shown(), IsEmpty());
  search({"a", "Previous Search"});
  EXPECT_THAT(shown(), ElementsAre("Previous Search", "a"));
  choose("mnuExit");
  EXPECT_EQ(stored(), (std::map<std::string, std::string>{{"Search0", "a"}}));
}

TEST_F(RecentSearchMenu, ChoosingOneSearchesAgainWithoutMovingIt) {
  search({"a", ":Surprise Me", "b"});
  EXPECT_TRUE(choose("mnuSearch", 1));
  EXPECT_THAT(take(), Contains("search component: search :Random"));
  EXPECT_EQ(searchBox().content, ":Surprise Me");
  EXPECT_THAT(shown(), ElementsAre("b", ":Surprise Me", "a", "Previous Search"));
}

TEST_F(RecentSearchMenu, LeavesStaleTextsInTheStore) {
  for (int i = 0; i < 5; ++i) store("Search" + std::to_string(i), "old" + std::to_string(i));
  search({"a"});
  choose("mnuExit");
  EXPECT_EQ(stored(),
            (std::map<std::string, std::string>{
                {"Search0", "a"}, {"Search1", "old1"}, {"Search2", "old2"}, {"Search3", "old3"}, {"Search4", "old4"}}));
}

class StoredSearchMenu : public RecentSearchMenu {
 protected:
  void SetUp() override {
    for (int i = 0; i < 7; ++i) store("Search" + std::to_string(i), "s" + std::to_string(i));
    open();
  }
};

TEST_F(StoredSearchMenu, WithMoreThanFiveKeepsItsLength) {
  search({"new"});
  EXPECT_THAT(shown(), ElementsAre("new", "s0", "s1", "s2", "s3", "s4", "s5"));
  choose("mnuExit");
  EXPECT_EQ(stored().at("Search6"), "s5");
}

TEST_F(StoredSearchMenu, ComesBackInTheNextLife) {
  search({"new"});
  control->ToolbarDispose();
  library.browser.load();
  EXPECT_THAT(shown(), ElementsAre("new", "s0", "s1", "s2", "s3", "s4", "s5"));
}

class CatalogCommands : public CatalogTest {
 protected:
  void SetUp() override {
    platform.registry.keys["Software\\Tarnwell\\Zephra"].push_back({"Exp", ""});
    open();
  }
};

TEST_F(CatalogCommands, HelpIsOpenedFromTheMenu) {
  EXPECT_TRUE(choose("mnuHelp"));
  EXPECT_THAT(take(), ElementsAre("help C:\\Zephra\\Help\\Zephra.hlp"));
}

TEST_F(CatalogCommands, TheWebPageIsOpenedOutOfSightFromMenuAndLogo) {
  EXPECT_TRUE(choose("mnuWeb"));
  catalog().stillPicture("picLogo").press();
  const Lines lines = take();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0], lines[1]);
  EXPECT_THAT(lines[0], testing::MatchesRegex("open https://.+ in C:.Zephra.System as 0"));
}

TEST_F(CatalogCommands, AMissingBrowserIsTold) {
  platform.shell.opens = false;
  answerBoxes(2);
  choose("mnuWeb");
  choose("mnuMaster");
  EXPECT_THAT(takeBoxes(),
              ElementsAre("box [Zephra Catalog] Sorry, Zephra was unable to start a Web Browser.",
                          "box [Zephra Catalog] Sorry, Zephra was unable to start a Web Browser to view the file "
                          "'expansion.htm'"));
}

TEST_F(CatalogCommands, TheExpansionPageIsOpened) {
  EXPECT_TRUE(choose("mnuMaster"));
  EXPECT_THAT(take(), ElementsAre("open C:\\Zephra\\System\\expansion.htm in C:\\Zephra\\System as 1"));
}

TEST_F(CatalogCommands, TheAboutBoxIsShownAndUnloaded) {
  platform.windows.duringModal = [](headless::FormWindow& box) { box.userClicks(); };
  EXPECT_TRUE(choose("mnuAbout"));
  const Lines lines = take();
  EXPECT_THAT(lines, Contains("frmAbout: show modal"));
  EXPECT_EQ(lines.back(), "frmAbout: unload");
}

TEST_F(CatalogCommands, CopyCannotBeChosen) { EXPECT_FALSE(choose("mnuCopy")); }

TEST_F(CatalogCommands, TheLogoIsTheStoredPicture) { EXPECT_NE(catalog().stillPicture("picLogo").picture, nullptr); }

}  // namespace
}  // namespace nerida

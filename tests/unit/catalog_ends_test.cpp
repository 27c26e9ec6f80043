// The catalog where something gives out that it works with, or takes it down: its settings, its window, the model, the
// search component.
#include "tests/unit/catalog_desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;

class CatalogEnds : public CatalogTest {};

TEST_F(CatalogEnds, TheModelHearsOfItsEndWhenAllElseIsDone) {
  searchBox().enter("mill");
  library.browser.SetCallback();
  bool heard = false;
  model->hooks["DoneShowingModelCatalog"] = [&] {
    heard = true;
    EXPECT_EQ(stored(), (std::map<std::string, std::string>{{"Search0", "mill"}}));
    EXPECT_FALSE(library.state.gFormLoaded[catalogIndex]);
    EXPECT_FALSE(library.state.gFormShown[catalogIndex]);
    EXPECT_FALSE(catalog().isHooked());
  };
  library.browser.unload();
  EXPECT_TRUE(heard);
}

TEST_F(CatalogEnds, SettingsThatCannotBeWrittenAreToldAndTheCatalogStillCloses) {
  searchBox().enter("mill");
  platform.settings.isWritable = false;
  take();
  answerBoxes(1);
  choose("mnuExit");
  EXPECT_THAT(take(), ElementsAre(errorBox, "frmBrowser: hide", "model: ModelName",
                                  "frmToolbar: caption Zephra Toolbar: Windmill", "model: IsCatalogShowing = False",
                                  "model: DoneShowingModelCatalog = True"));
  EXPECT_FALSE(library.state.gFormShown[catalogIndex]);
}

TEST_F(CatalogEnds, SettingsThatCannotBeWrittenDoNotKeepItLoaded) {
  searchBox().enter("mill");
  platform.settings.isWritable = false;
  take();
  control->ToolbarDispose();
  const Lines lines = take();
  EXPECT_THAT(lines, testing::Contains("model: DoneShowingModelCatalog = True").Times(2));  // closed, then unloaded
  EXPECT_THAT(lines, testing::Not(testing::Contains(testing::StartsWith("box "))));
  EXPECT_TRUE(platform.windows.living.empty());
}

TEST_F(CatalogEnds, WithoutAWindowThePageIsToldLikeWithoutABrowser) {
  control->ToolbarDispose();
  platform.windows.creationFailures["frmBrowser"] = error::outOfMemory;
  take();
  answerBoxes(1);
  library.browser.ShowWeb();
  EXPECT_THAT(take(), ElementsAre("box [Zephra Catalog] Sorry, Zephra was unable to start a Web Browser."));
}

TEST_F(CatalogEnds, WithoutAModelItIsNotShown) {
  library.state.gModelObject.reset();
  choose("mnuExit");
  take();
  answerBoxes(1);
  control->ShowCatalog();
  EXPECT_THAT(takeBoxes(), ElementsAre("box [Zephra Toolbar] Error showing Model Catalog: Object variable or With "
                                       "block variable not set"));
  EXPECT_FALSE(control->IsCatalogVisible());
  EXPECT_FALSE(library.state.gFormShown[catalogIndex]);
}

TEST_F(CatalogEnds, AComponentMayTakeItDownInTheMiddleOfASearch) {
  platform.search.search = [this](std::string&) {
    control->ToolbarDispose();
    take();
    return hitsOf({"Windmill"}, {42}, {0});
  };
  searchBox().enter("mill");
  EXPECT_THAT(take(), ElementsAre("search component: release", "pointer 0"));
  EXPECT_TRUE(platform.windows.living.empty());
}

}  // namespace
}  // namespace nerida

// Folding the movement groups, the other world buttons, the model button, and the toolbar's own ShowSelf.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NudgeToggle : public DeskTest {
 protected:
  void SetUp() override { createInitAndShow(); }
};

TEST_F(NudgeToggle, UnfoldsAndFoldsWithTheButtonLatched) {
  bar("barWorld").press("Move");
  EXPECT_THAT(take(), ElementsAre("frmToolbar: height 1140", "barWorld(0): Move state 2"));
  bar("barWorld").press("Move");
  EXPECT_THAT(take(), ElementsAre("frmToolbar: height 735", "barWorld(0): Move state 0"));
}

TEST_F(NudgeToggle, SetsOneAndTheSameStateAgain) {
  library.toolbar.NudgeToggle(true);
  library.toolbar.NudgeToggle(true);
  take();
  bar("barWorld").press("Move");  // the value last given counts
  EXPECT_THAT(take(), ElementsAre("frmToolbar: height 735", "barWorld(0): Move state 0"));
}

TEST_F(NudgeToggle, ShowSelfAppliesItMarksTellsAndShowsInPlace) {
  library.toolbar.NudgeToggle(true);
  control->ToolbarHide();
  take();
  library.toolbar.ShowSelf();
  EXPECT_THAT(take(), ElementsAre("frmToolbar: height 1140", "barWorld(0): Move state 2",
                                  "model: IsToolbarShowing = True", "frmToolbar: show topmost at (10, 20)"));
  EXPECT_TRUE(library.state.gFormShown[toolbarIndex]);
}

TEST_F(NudgeToggle, ShowSelfReportsAFailingModelAndStaysHidden) {
  control->ToolbarHide();
  model->failures.emplace("IsToolbarShowing", Error(5));
  take();
  answerBoxes(1);
  library.toolbar.ShowSelf();
  EXPECT_THAT(takeBoxes(), ElementsAre(errorBox));
  EXPECT_FALSE(control->IsToolbarVisible());
}

TEST_F(NudgeToggle, HelpOpensTheHelpFile) {
  bar("barWorld", 2).press("Help");
  EXPECT_THAT(take(), ElementsAre("help C:\\Zephra\\Help\\Zephra.hlp"));
}

TEST_F(NudgeToggle, AnUnknownWorldKeyDoesNothing) {
  bar("barWorld").buttonPress("move");
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(NudgeToggle, TheModelButtonHidesTheToolbarAndShowsTheCatalog) {
  bar("barMB").press("Model");
  EXPECT_THAT(withoutCatalog(take()),
              ElementsAre("model: IsToolbarShowing = False", "frmToolbar: hide", "model: AnimationState",
                          "frmBrowser: show topmost", "model: IsCatalogShowing = True"));
}

TEST_F(NudgeToggle, TheModelButtonHaltsAPlayingModelFirst) {
  model->values["AnimationState"] = std::int32_t{1};
  bar("barMB").press("Model");
  EXPECT_THAT(withoutCatalog(takeModelCalls()),
              ElementsAre("model: IsToolbarShowing = False", "model: AnimationState", "model: AnimationState = False",
                          "model: StopTimer", "model: IsCatalogShowing = True"));
}

TEST_F(NudgeToggle, AModelThatCannotTellWhetherItPlaysKeepsTheCatalogClosed) {
  model->failures.emplace("AnimationState", Error(5));
  answerBoxes(1);
  bar("barMB").press("Model");
  EXPECT_THAT(take(),
              ElementsAre("model: IsToolbarShowing = False", "frmToolbar: hide", "model: AnimationState", errorBox));
  EXPECT_FALSE(control->IsCatalogVisible());
}

TEST_F(NudgeToggle, AFailedHidingIsToldAndTheModelButtonGoesOn) {
  model->failures.emplace("IsToolbarShowing", Error(5));
  answerBoxes(1);
  bar("barMB").press("Model");
  EXPECT_THAT(withoutCatalog(take()), ElementsAre("model: IsToolbarShowing = False", errorBox, "model: AnimationState",
                                                  "frmBrowser: show topmost", "model: IsCatalogShowing = True"));
}

}  // namespace
}  // namespace nerida

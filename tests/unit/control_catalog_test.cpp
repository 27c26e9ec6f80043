// ShowCatalog and ShowHelp.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;

const std::string helpLine = "help C:\\Zephra\\Help\\Zephra.hlp";

class ControlCatalog : public DeskTest {
 protected:
  void SetUp() override { createAndInit(); }
};

TEST_F(ControlCatalog, WithTheToolbarHiddenLeavesItsPropertyAlone) {
  EXPECT_EQ(control->ShowCatalog(), form("frmBrowser").handle());
  EXPECT_THAT(take(), ElementsAre("frmToolbar: hook", "txtSearch: text Enter Keyword(s) for Model Search",
                                  "mnuSearch(0): caption Previous Search", "mnuCategory(0): caption Surprise Me",
                                  "model: GetLookStyleList ByRef Empty, ByRef Empty, ByRef Empty", "cmbStyles: clear",
                                  "cmbStyles: add Basic Draw", "cmbStyles: add Shaded", "cmbStyles: add Ink Outline",
                                  "model: LookStyleName", "cmbStyles: select 1", "frmBrowser: show topmost",
                                  "model: IsCatalogShowing = True"));
  EXPECT_TRUE(library.state.gFormShown[catalogIndex]);
  EXPECT_TRUE(control->IsCatalogVisible());
}

TEST_F(ControlCatalog, WithTheToolbarShownHidesItFirstAndTellsTheModelTwice) {
  show();
  take();
  EXPECT_EQ(control->ShowCatalog(), form("frmBrowser").handle());
  EXPECT_THAT(withoutCatalog(take()),
              ElementsAre("model: IsToolbarShowing = False", "frmToolbar: hide", "model: IsToolbarShowing = False",
                          "frmBrowser: show topmost", "model: IsCatalogShowing = True"));
  EXPECT_FALSE(control->IsToolbarVisible());
}

TEST_F(ControlCatalog, ThatIsShownAlreadyIsClosedWithTheToolbarAndShownAgain) {
  control->ShowCatalog();
  show();
  take();
  control->ShowCatalog();
  EXPECT_THAT(withoutCatalog(takeModelCalls()),
              ElementsAre("model: ModelName", "model: IsCatalogShowing = False",
                          "model: DoneShowingModelCatalog = True", "model: IsToolbarShowing = False",
                          "model: IsToolbarShowing = False", "model: IsCatalogShowing = True"));
  EXPECT_TRUE(control->IsCatalogVisible());
}

TEST_F(ControlCatalog, AModelThatRaisesOnTheToolbarIsReportedByTheToolbarAndByTheMethod) {
  show();
  model->failures.emplace("IsToolbarShowing", Error(5));
  take();
  answerBoxes(2);
  EXPECT_EQ(control->ShowCatalog(), -1);
  EXPECT_THAT(take(),
              ElementsAre("model: IsToolbarShowing = False", errorBox, "model: IsToolbarShowing = False", toolbarBox));
  EXPECT_FALSE(control->IsCatalogVisible());
}

TEST_F(ControlCatalog, AModelThatRaisesOnTheCatalogIsToldThatItIsClosed) {
  model->failures.emplace("IsCatalogShowing", Error(380, "Invalid property value"));
  answerBoxes(1);
  EXPECT_EQ(control->ShowCatalog(), form("frmBrowser").handle());
  EXPECT_THAT(
      withoutCatalog(take()),
      ElementsAre("frmToolbar: hook", "frmBrowser: show topmost", "model: IsCatalogShowing = True",
                  "box [Zephra Toolbar] Error showing Model Catalog: Invalid property value", "frmBrowser: hide",
                  "model: IsCatalogShowing = False", "model: DoneShowingModelCatalog = True"));
  EXPECT_FALSE(library.state.gFormShown[catalogIndex]);
}

TEST_F(ControlCatalog, WithoutMemoryForItsWindowGivesNoHandle) {
  control->ToolbarDispose();
  platform.windows.creationFailures["frmBrowser"] = error::outOfMemory;
  answerBoxes(1);
  take();
  EXPECT_EQ(control->ShowCatalog(), -1);
  EXPECT_THAT(takeBoxes(), ElementsAre("box [Zephra Toolbar] Error showing Model Catalog: Out of memory"));
}

TEST_F(ControlCatalog, GivesNoWindowWhenTheModelDisposedOfItMeanwhile) {
  model->hooks["IsCatalogShowing"] = [this] { control->ToolbarDispose(); };
  EXPECT_EQ(control->ShowCatalog(), -1);
  EXPECT_THAT(takeBoxes(), testing::IsEmpty());
  EXPECT_TRUE(platform.windows.living.empty());
}

TEST_F(ControlCatalog, LeavesTheToolbarHookedAndItselfUnhooked) {
  control->ShowCatalog();
  EXPECT_TRUE(toolbar().isHooked());
  EXPECT_FALSE(form("frmBrowser").isHooked());
}

TEST_F(ControlCatalog, ItsHookPassesEveryMessageOnUnchanged) {
  show();
  headless::FormWindow& catalog = form("frmBrowser");
  catalog.previousAnswer = 42;
  take();
  for (const std::uint32_t number : {28U, 126U, 15U}) {
    EXPECT_EQ(catalog.send(number, 3, 4), 42);
    EXPECT_EQ(catalog.passedOn.back(), (Message{catalog.handle(), number, 3, 4}));
  }
  EXPECT_THAT(takeModelCalls(), testing::IsEmpty());
  EXPECT_THAT(takeBoxes(), testing::IsEmpty());
}

TEST_F(ControlCatalog, HelpOpensTheHelpFile) {
  control->ShowHelp();
  EXPECT_THAT(take(), ElementsAre(helpLine));
}

TEST_F(ControlCatalog, HelpLoadsTheCatalogWhoseWindowOwnsIt) {
  control->ToolbarDispose();
  take();
  control->ShowHelp();
  EXPECT_THAT(withoutCatalog(take()), ElementsAre("frmBrowser: load", helpLine));
}

TEST_F(ControlCatalog, HelpWithoutAWindowIsToldOnce) {
  control->ToolbarDispose();
  platform.windows.creationFailures["frmBrowser"] = error::outOfMemory;
  take();
  answerBoxes(1);
  control->ShowHelp();
  EXPECT_THAT(take(), ElementsAre(errorBox));
}

}  // namespace
}  // namespace nerida

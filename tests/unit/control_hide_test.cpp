// ToolbarHide: unhooking, then catalog, toolbar and popups in this order.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ControlHide : public DeskTest {
 protected:
  void SetUp() override { createAndInit(); }
};

TEST_F(ControlHide, WithNothingShowingDoesNothing) {
  EXPECT_EQ(control->ToolbarHide(), 0);
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(ControlHide, UnhooksAndHidesTheToolbarWhichTellsTheModel) {
  show();
  take();
  EXPECT_EQ(control->ToolbarHide(), 0);
  EXPECT_THAT(take(), ElementsAre("frmToolbar: unhook", "frmBrowser: unhook", "model: IsToolbarShowing = False",
                                  "frmToolbar: hide"));
  EXPECT_FALSE(control->IsToolbarVisible());
  EXPECT_FALSE(library.state.gFormShown[toolbarIndex]);
  control->ToolbarHide();
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(ControlHide, HidesTheCatalogBeforeTheToolbarAndItsPopups) {
  show();
  control->ShowCatalog();
  show();
  library.lineThicknessMenu.ShowSelf(1, 1);
  take();
  control->ToolbarHide();
  EXPECT_THAT(take(),
              ElementsAre("frmToolbar: unhook", "frmBrowser: unhook", "frmBrowser: hide", "model: ModelName",
                          "frmToolbar: caption Zephra Toolbar: Windmill", "model: IsCatalogShowing = False",
                          "model: DoneShowingModelCatalog = True", "frmLineThicknessMenu: hide", foregroundLine(),
                          "barLS(0): LineThickness state 0", "model: IsToolbarShowing = False", "frmToolbar: hide"));
}

TEST_F(ControlHide, HidesPopupsOfAToolbarThatDoesNotShow) {
  showBeside(library.lighting);
  showBeside(library.lineColors);
  take();
  control->ToolbarHide();
  EXPECT_THAT(take(), ElementsAre("frmLineColors: hide", foregroundLine(), "barLS(1): LineColorFill state 0",
                                  "frmLighting: hide", foregroundLine(), "barWorld(0): Lighting state 0"));
}

TEST_F(ControlHide, AToolbarOutOfSightWhileAnotherProgramIsInFrontIsHiddenForGood) {
  show();
  platform.windows.activateApplication(false);
  EXPECT_FALSE(control->IsToolbarVisible());
  take();
  control->ToolbarHide();
  EXPECT_FALSE(library.state.gFormShown[toolbarIndex]);
  EXPECT_THAT(takeModelCalls(), ElementsAre("model: IsToolbarShowing = False"));
}

TEST_F(ControlHide, AModelThatRaisesIsReportedAndTheToolbarStaysUpUnmarked) {
  show();
  take();
  model->failures.emplace("IsToolbarShowing", Error(5));
  answerBoxes(1);
  EXPECT_EQ(control->ToolbarHide(), 0);
  EXPECT_THAT(take(),
              ElementsAre("frmToolbar: unhook", "frmBrowser: unhook", "model: IsToolbarShowing = False", errorBox));
  EXPECT_TRUE(toolbar().isVisible());
  EXPECT_FALSE(library.state.gFormShown[toolbarIndex]);
}

TEST_F(ControlHide, ShortMemoryIsToldAsSuchByTheToolbar) {
  show();
  model->failures.emplace("IsToolbarShowing", Error(error::outOfMemory));
  answerBoxes(1);
  control->ToolbarHide();
  EXPECT_THAT(takeBoxes(), ElementsAre(memoryBox));
}

class CatalogHideFailure : public testing::TestWithParam<std::int32_t>, protected Desk {};

TEST_P(CatalogHideFailure, IsToldWithTheGeneralMessageAndTheToolbarIsStillHidden) {
  createAndInit();
  control->ShowCatalog();
  show();
  take();
  model->failures.emplace("ModelName", Error(GetParam()));
  answerBoxes(1);
  EXPECT_EQ(control->ToolbarHide(), 0);
  EXPECT_THAT(take(), ElementsAre("frmToolbar: unhook", "frmBrowser: unhook", "frmBrowser: hide", "model: ModelName",
                                  errorBox, "model: IsCatalogShowing = False", "model: DoneShowingModelCatalog = True",
                                  "model: IsToolbarShowing = False", "frmToolbar: hide"));
}

INSTANTIATE_TEST_SUITE_P(Errors, CatalogHideFailure, testing::Values(5, 7, 438));

TEST_F(ControlHide, AnEmptyModelNameLeavesTheCaption) {
  control->ShowCatalog();
  model->values["ModelName"] = std::string();
  take();
  control->ToolbarHide();
  EXPECT_THAT(take(), ElementsAre("frmToolbar: unhook", "frmBrowser: hide", "model: ModelName",
                                  "model: IsCatalogShowing = False", "model: DoneShowingModelCatalog = True"));
}

TEST(ControlHideWithoutModel, HidesWithoutAMessage) {
  Desk desk;
  desk.create();
  desk.answerBoxes(1);
  desk.show();
  desk.take();
  EXPECT_EQ(desk.control->ToolbarHide(), 0);
  EXPECT_THAT(desk.take(), ElementsAre("frmToolbar: unhook", "frmBrowser: unhook", "frmToolbar: hide"));
}

TEST_F(ControlHide, AfterDisposingTouchesNothing) {
  show();
  control->ToolbarDispose();
  take();
  EXPECT_EQ(control->ToolbarHide(), 0);
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(ControlHide, ClosingTheToolbarByItsBoxHidesItAndKeepsItLoaded) {
  show();
  take();
  toolbar().userCloses();
  EXPECT_THAT(take(), ElementsAre("model: IsToolbarShowing = False", "frmToolbar: hide"));
  EXPECT_TRUE(library.state.gFormLoaded[toolbarIndex]);
  show();
  EXPECT_EQ(styles().entries.size(), 3U);
}

TEST_F(ControlHide, ClosingTheCatalogByItsBoxTellsTheModelAndKeepsItLoaded) {
  control->ShowCatalog();
  take();
  form("frmBrowser").userCloses();
  EXPECT_THAT(takeModelCalls(), ElementsAre("model: ModelName", "model: IsCatalogShowing = False",
                                            "model: DoneShowingModelCatalog = True"));
  EXPECT_TRUE(library.state.gFormLoaded[catalogIndex]);
  EXPECT_FALSE(library.state.gFormShown[catalogIndex]);
}

}  // namespace
}  // namespace nerida

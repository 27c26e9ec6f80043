// ToolbarShow: where the toolbar appears, what the caller gets back, what happens when something fails.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ControlShow : public DeskTest {
 protected:
  void SetUp() override { createAndInit(); }
};

TEST_F(ControlShow, HooksBothFormsPlacesTheToolbarAndTellsTheModel) {
  std::int16_t x = 10;
  std::int16_t y = 20;
  EXPECT_EQ(control->ToolbarShow(x, y), toolbar().handle());
  EXPECT_EQ(x, 10);
  EXPECT_EQ(y, 20);
  EXPECT_THAT(take(), ElementsAre("frmToolbar: hook", "frmBrowser: hook", "frmToolbar: show topmost at (10, 20)",
                                  "model: IsToolbarShowing = True"));
  EXPECT_TRUE(library.state.gFormShown[toolbarIndex]);
  EXPECT_TRUE(control->IsToolbarVisible());
}

TEST_F(ControlShow, AgainMovesTheToolbarAndHooksNothingTwice) {
  show();
  take();
  show(-5, 30);
  EXPECT_THAT(take(), ElementsAre("frmToolbar: show topmost at (-5, 30)", "model: IsToolbarShowing = True"));
}

struct PlaceCase {
  std::int16_t x, y;
  Point hostCorner;
  std::int16_t placedX, placedY;
};

class ControlShowPlace : public testing::TestWithParam<PlaceCase>, protected Desk {};

TEST_P(ControlShowPlace, IsTheGivenPointOrTheHostsCornerWhenEitherCoordinateIsZero) {
  createAndInit();
  platform.screen.hostClientCorner = GetParam().hostCorner;
  std::int16_t x = GetParam().x;
  std::int16_t y = GetParam().y;
  EXPECT_NE(control->ToolbarShow(x, y), -1);
  EXPECT_EQ(x, GetParam().placedX);
  EXPECT_EQ(y, GetParam().placedY);
  EXPECT_EQ(toolbar().position(), (Point{GetParam().placedX, GetParam().placedY}));
}

INSTANTIATE_TEST_SUITE_P(Places, ControlShowPlace,
                         testing::Values(PlaceCase{10, 20, {300, 400}, 10, 20},            //
                                         PlaceCase{0, 250, {300, 400}, 300, 400},          //
                                         PlaceCase{250, 0, {300, 400}, 300, 400},          //
                                         PlaceCase{0, 0, {300, 400}, 300, 400},            //
                                         PlaceCase{-1, -1, {300, 400}, -1, -1},            //
                                         PlaceCase{0, 0, {-1200, -8}, -1200, -8},          // a screen to the left
                                         PlaceCase{0, 0, {32767, -32768}, 32767, -32768},  //
                                         PlaceCase{0, 9, {0, 0}, 0, 0}));

TEST_F(ControlShow, AHostWindowThatIsGonePutsTheToolbarInTheScreensCorner) {
  platform.screen.hostWindow = 0;
  std::int16_t x = 0;
  std::int16_t y = 250;
  EXPECT_EQ(control->ToolbarShow(x, y), toolbar().handle());
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 0);
}

TEST_F(ControlShow, ACornerTooFarToTheRightLeavesBothVariablesAndShowsNothing) {
  platform.screen.hostClientCorner = {32768, 5};
  answerBoxes(1);
  std::int16_t x = 0;
  std::int16_t y = 250;
  EXPECT_EQ(control->ToolbarShow(x, y), -1);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 250);
  EXPECT_THAT(take(), ElementsAre(toolbarBox));
  EXPECT_FALSE(control->IsToolbarVisible());
}

TEST_F(ControlShow, ACornerTooFarDownLeavesTheNewXAndTheOldY) {
  platform.screen.hostClientCorner = {100, 40000};
  answerBoxes(1);
  std::int16_t x = 0;
  std::int16_t y = 250;
  EXPECT_EQ(control->ToolbarShow(x, y), -1);
  EXPECT_EQ(x, 100);
  EXPECT_EQ(y, 250);
  EXPECT_THAT(take(), ElementsAre(toolbarBox));
}

class ControlShowFailure : public testing::TestWithParam<std::int32_t>, protected Desk {};

TEST_P(ControlShowFailure, OfTheModelHasOneMessageAndLeavesTheToolbarUp) {
  createAndInit();
  model->failures.emplace("IsToolbarShowing", Error(GetParam()));
  answerBoxes(1);
  EXPECT_EQ(show(), -1);
  EXPECT_THAT(takeBoxes(), ElementsAre(toolbarBox));
  EXPECT_TRUE(toolbar().isVisible());
  EXPECT_TRUE(toolbar().isHooked());
  EXPECT_TRUE(form("frmBrowser").isHooked());
  EXPECT_TRUE(library.state.gFormShown[toolbarIndex]);
}

INSTANTIATE_TEST_SUITE_P(Errors, ControlShowFailure, testing::Values(5, 7, 13, 380, 438));

TEST_F(ControlShow, LeavesAVisibleCatalogAlone) {
  control->ShowCatalog();
  take();
  show();
  EXPECT_TRUE(control->IsToolbarVisible());
  EXPECT_TRUE(control->IsCatalogVisible());
  EXPECT_THAT(take(), ElementsAre("frmBrowser: hook", "frmToolbar: show topmost at (10, 20)",
                                  "model: IsToolbarShowing = True"));
}

TEST_F(ControlShow, KeepsTheMovementGroupsAsTheyAre) {
  show();
  bar("barWorld").press("Move");
  control->ToolbarHide();
  take();
  show();
  EXPECT_EQ(toolbar().height.value, 1140);
  EXPECT_EQ(bar("barWorld").button("Move").state, buttonDown);
}

TEST_F(ControlShow, AfterDisposingLoadsTheFormsItTouchesAndReportsTheMissingModel) {
  control->ToolbarDispose();
  take();
  answerBoxes(1);
  EXPECT_EQ(show(), -1);
  EXPECT_THAT(withoutCatalog(withoutBars(take())),
              ElementsAre("frmToolbar: load", "frmToolbar: hook", "frmBrowser: load", "frmBrowser: hook",
                          "frmToolbar: show topmost at (10, 20)", toolbarBox));
  EXPECT_TRUE(library.state.gFormLoaded[toolbarIndex]);
  EXPECT_TRUE(library.state.gFormLoaded[catalogIndex]);
}

TEST_F(ControlShow, WithoutMemoryForTheWindowHasTheToolbarsMessage) {
  control->ToolbarDispose();
  take();
  platform.windows.creationFailures["frmToolbar"] = error::outOfMemory;
  answerBoxes(1);
  EXPECT_EQ(show(), -1);
  EXPECT_THAT(take(), ElementsAre(toolbarBox));
}

TEST_F(ControlShow, GivesNoWindowWhenTheModelDisposedOfItMeanwhile) {
  model->hooks["IsToolbarShowing"] = [this] { control->ToolbarDispose(); };
  EXPECT_EQ(show(), -1);
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_TRUE(platform.windows.living.empty());
}

TEST(ControlShowBeforeInit, ReportsTheMissingModelWithTheToolbarUp) {
  Desk desk;
  desk.create();
  desk.take();
  desk.answerBoxes(1);
  EXPECT_EQ(desk.show(), -1);
  EXPECT_THAT(desk.takeBoxes(), ElementsAre(toolbarBox));
  EXPECT_TRUE(desk.toolbar().isVisible());
}

}  // namespace
}  // namespace nerida

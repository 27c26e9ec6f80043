// The toolbar's window procedure: the application loses and regains the focus, the display changes, the rest passes.
#include "control/toolbar_window_proc.h"
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WindowProc : public DeskTest {
 protected:
  void SetUp() override { createInitAndShow(); }

  void lose() { EXPECT_EQ(toolbar().send(messageActivateApplication, 0), 0); }
  void gain() { EXPECT_EQ(toolbar().send(messageActivateApplication, 1), 0); }
};

TEST_F(WindowProc, LosingTheFocusHidesTheBareToolbarAndAsksWhetherTheModelPlays) {
  lose();
  EXPECT_THAT(take(), ElementsAre("frmToolbar: hide", "model: AnimationState"));
  EXPECT_TRUE(library.state.gFormShown[toolbarIndex]);
}

TEST_F(WindowProc, RegainingItBringsTheToolbarBack) {
  lose();
  take();
  gain();
  EXPECT_THAT(take(), ElementsAre("frmToolbar: show topmost", "model: AnimationState"));
  EXPECT_EQ(toolbar().position(), (Point{10, 20}));
}

TEST_F(WindowProc, APlayingModelIsHaltedAndGoesOn) {
  model->values["AnimationState"] = std::int16_t{1};  // any number but zero is true
  lose();
  EXPECT_THAT(take(), ElementsAre("frmToolbar: hide", "model: AnimationState", "model: StopTimer"));
  gain();
  EXPECT_THAT(take(), ElementsAre("frmToolbar: show topmost", "model: AnimationState", "model: StartTimer"));
}

TEST_F(WindowProc, AnyParameterButZeroMeansGaining) {
  lose();
  take();
  EXPECT_EQ(toolbar().send(messageActivateApplication, 0x80000000U, 99), 0);
  EXPECT_TRUE(toolbar().isVisible());
}

TEST_F(WindowProc, ActivationIsNotPassedOn) {
  lose();
  gain();
  EXPECT_TRUE(toolbar().passedOn.empty());
}

TEST_F(WindowProc, LosingTheFocusClosesPopupsInTheirOrderAndTheyStayClosed) {
  showBeside(library.lighting);
  showBeside(library.animation);
  showBeside(library.lineThicknessMenu);
  take();
  lose();
  EXPECT_THAT(take(), ElementsAre("frmToolbar: hide", "frmLineThicknessMenu: hide", foregroundLine(),
                                  "barLS(0): LineThickness state 0", "frmAnimation: hide", foregroundLine(),
                                  "frmLighting: hide", foregroundLine(), "barWorld(0): Lighting state 0",
                                  "model: AnimationState"));
  gain();
  EXPECT_FALSE(form("frmLighting").isVisible());
  EXPECT_FALSE(form("frmAnimation").isVisible());
}

TEST_F(WindowProc, WithTheCatalogUpOnlyTheCatalogIsHidden) {
  control->ShowCatalog();
  show();
  library.lighting.ShowSelf(1, 1);
  model->values["AnimationState"] = true;
  take();
  lose();
  EXPECT_THAT(take(), ElementsAre("frmBrowser: hide"));
  EXPECT_TRUE(library.state.gFormShown[catalogIndex]);
  EXPECT_TRUE(form("frmLighting").isVisible());
  EXPECT_TRUE(toolbar().isVisible());
}

TEST_F(WindowProc, WithCatalogAndToolbarMarkedOnlyTheCatalogComesBack) {
  control->ShowCatalog();
  show();
  lose();
  take();
  gain();
  EXPECT_THAT(take(), ElementsAre("frmBrowser: show topmost", "model: AnimationState"));
}

TEST_F(WindowProc, WithNothingMarkedNothingComesBack) {
  toolbar().userCloses();
  take();
  lose();
  gain();
  EXPECT_THAT(take(), ElementsAre("model: AnimationState", "model: AnimationState"));
  EXPECT_FALSE(toolbar().isVisible());
}

TEST_F(WindowProc, AnOpenAboutBoxIsTakenDownWithTheCatalog) {
  control->ShowCatalog();
  platform.windows.duringModal = [this](headless::FormWindow&) {
    take();
    lose();
  };
  control->ShowAboutBox();
  EXPECT_THAT(take(), ElementsAre("frmAbout: hide", "frmAbout: timer off", "frmBrowser: hide", "frmAbout: modal end",
                                  "frmAbout: unload"));
}

class WindowProcFailure : public testing::TestWithParam<const char*>, protected Desk {};

TEST_P(WindowProcFailure, OfTheModelIsSwallowed) {
  createInitAndShow();
  model->values["AnimationState"] = true;
  model->failures.emplace(GetParam(), Error(5));
  EXPECT_EQ(toolbar().send(messageActivateApplication, 0), 0);
  EXPECT_EQ(toolbar().send(messageActivateApplication, 1), 0);
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_TRUE(toolbar().isVisible());
}

INSTANTIATE_TEST_SUITE_P(Members, WindowProcFailure, testing::Values("AnimationState", "StopTimer", "StartTimer"));

TEST_F(WindowProc, AnAnimationStateThatIsNoBooleanIsSwallowed) {
  for (const Value& value : {Value(std::string("abc")), Value(ObjectRef(model)), textArray({})}) {
    model->values["AnimationState"] = value;
    lose();
    gain();
  }
  EXPECT_THAT(takeBoxes(), IsEmpty());
  model->values.clear();  // the member may not be cyclic when the test ends
}

TEST_F(WindowProc, WithoutAModelNothingIsAsked) {
  library.state.gModelObject.reset();
  lose();
  gain();
  EXPECT_THAT(take(), ElementsAre("frmToolbar: hide", "frmToolbar: show topmost"));
}

TEST_F(WindowProc, APopupThatFailsToCloseDoesNotKeepTheNextOpen) {
  for (int i = 0; i < 32768; ++i) library.toolbar.KillChild();  // the count of popups cannot go lower
  library.lineThicknessMenu.ShowSelf(1, 1);
  library.lighting.ShowSelf(1, 1);
  lose();
  EXPECT_FALSE(form("frmLineThicknessMenu").isVisible());
  EXPECT_FALSE(form("frmLighting").isVisible());
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(WindowProc, ADisplayChangeIsToldAsShortMemoryAndPassedOn) {
  toolbar().previousAnswer = 5;
  answerBoxes(1);
  EXPECT_EQ(toolbar().send(messageDisplayChange, 32, 0x03000400), 5);
  EXPECT_THAT(take(), ElementsAre(memoryBox, "frmToolbar: previous procedure gets message 126"));
  EXPECT_EQ(toolbar().passedOn.back(), (Message{toolbar().handle(), messageDisplayChange, 32, 0x03000400}));
}

TEST_F(WindowProc, ADisplayChangeEndsQuietlyWhenTheToolbarGoesDuringItsMessage) {
  platform.boxes.duringBox = [this] { control->ToolbarDispose(); };
  answerBoxes(1);
  EXPECT_EQ(toolbar().send(messageDisplayChange), 0);
  EXPECT_TRUE(platform.windows.living.empty());
}

TEST_F(WindowProc, ADisplayChangeEndsQuietlyWhenTheControlGoesDuringItsMessage) {
  platform.boxes.duringBox = [this] { control.reset(); };
  answerBoxes(1);
  EXPECT_EQ(toolbar().send(messageDisplayChange), 0);
  EXPECT_TRUE(platform.windows.living.empty());
}

TEST_F(WindowProc, EveryOtherMessagePassesWithTheToolbarsOwnHandle) {
  toolbar().previousAnswer = -3;
  EXPECT_EQ(toolbar().send(15, 1, 2), -3);
  EXPECT_EQ(toolbar().passedOn.back(), (Message{toolbar().handle(), 15, 1, 2}));
  EXPECT_EQ(ToolbarWindowProc(library, {4711, 16, 3, 4}), -3);
  EXPECT_EQ(toolbar().passedOn.back(), (Message{toolbar().handle(), 16, 3, 4}));
  EXPECT_THAT(takeModelCalls(), IsEmpty());
}

TEST_F(WindowProc, AMessageInFlightAfterUnhookingStillReachesThePreviousProcedure) {
  control->ToolbarHide();
  take();
  EXPECT_EQ(ToolbarWindowProc(library, {toolbar().handle(), 15, 0, 0}), 0);
  EXPECT_THAT(take(), ElementsAre("frmToolbar: previous procedure gets message 15"));
}

TEST_F(WindowProc, DisposingFromInsideTheModelsTimerCallIsHarmless) {
  model->values["AnimationState"] = true;
  model->hooks["StopTimer"] = [this] { control.reset(); };
  EXPECT_EQ(toolbar().send(messageActivateApplication, 0), 0);
  EXPECT_TRUE(platform.windows.living.empty());
}

}  // namespace
}  // namespace nerida

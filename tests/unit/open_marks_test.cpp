// The marks of the open popups: a press always opens at once, except the one that has just closed the popup.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

class OpenMarks : public DeskTest {
 protected:
  void SetUp() override {
    enableStyleButtons();
    createInitAndShow();
  }
  headless::Bar& fill() { return bar("barLS", 2); }
  void press() { pressWithMouse(fill(), "SurfaceColorFill"); }
  bool isOpen() { return library.surfaceColors.isVisible(); }
  void open() {
    press();
    ASSERT_TRUE(isOpen());
  }
  void expectNextPressOpens() {
    ASSERT_FALSE(isOpen());
    EXPECT_EQ(fill().button("SurfaceColorFill").state, buttonUp);
    press();
    EXPECT_TRUE(isOpen());
  }
};

TEST_F(OpenMarks, FallAfterAChoice) {
  open();
  form("frmSurfaceColors").picture("pnlColor").pressPart(1);
  expectNextPressOpens();
}

TEST_F(OpenMarks, FallAfterTheStyleDefault) {
  open();
  form("frmSurfaceColors").picture("picLSSwatch").pressPart(0);
  expectNextPressOpens();
}

TEST_F(OpenMarks, FallAfterACancelledDialog) {
  open();
  platform.boxes.colorChoices = {std::nullopt};
  form("frmSurfaceColors").picture("picMoreColors").pressPart(0);
  expectNextPressOpens();
}

TEST_F(OpenMarks, FallWhenTheUserGoesElsewhere) {
  open();
  platform.windows.activateElsewhere();
  expectNextPressOpens();
}

TEST_F(OpenMarks, FallOnAPressElsewhereOnTheToolbar) {
  open();
  pressWithMouse(bar("barWorld"), "Move");
  expectNextPressOpens();
}

TEST_F(OpenMarks, FallOnAPressBesideTheButtons) {
  open();
  toolbar().userActivates();
  expectNextPressOpens();
}

TEST_F(OpenMarks, FallWhenTheUserThenGoesElsewhere) {
  open();
  toolbar().userActivates();
  platform.windows.activateElsewhere();
  expectNextPressOpens();
}

TEST_F(OpenMarks, FallWithEscape) {
  open();
  form("frmSurfaceColors").userCloses();
  expectNextPressOpens();
}

TEST_F(OpenMarks, FallWhenAnotherProgramIsClickedWhileTheButtonIsHeldDown) {
  open();
  toolbar().userActivates();
  platform.windows.activateElsewhere();
  expectNextPressOpens();
}

TEST_F(OpenMarks, OutliveThePopupUntilThePressThatClosedItArrives) {
  open();
  toolbar().userActivates();
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(fill().button("SurfaceColorFill").state, buttonUp);
  fill().clickedAt = platform.screen.milliseconds + 100;  // the clocks differ a little
  fill().press("SurfaceColorFill");
  fill().clickedAt.reset();
  expectNextPressOpens();
}

TEST_F(OpenMarks, FallWhenThatPressEndsOutsideTheButton) {
  open();
  toolbar().userActivates();
  ASSERT_FALSE(isOpen());
  fill().press("SurfaceColorFill");  // by the keyboard
  EXPECT_TRUE(isOpen());
}

TEST_F(OpenMarks, AreNotTakenForTheNextClickHoweverLongItTakesToCome) {
  for (const std::uint32_t later : {101U, 5000U, 0x7FFFFFFFU}) {
    open();
    toolbar().userActivates();
    ASSERT_FALSE(isOpen());
    fill().clickedAt = platform.screen.milliseconds + later;
    fill().press("SurfaceColorFill");
    EXPECT_TRUE(isOpen()) << later;
    fill().press("SurfaceColorFill");
  }
}

TEST_F(OpenMarks, OfTheOtherStyleButtonsFallOnAPress) {
  open();
  pressWithMouse(bar("barLS", 1), "LineColorFill");
  EXPECT_TRUE(library.lineColors.isVisible());
  expectNextPressOpens();
}

TEST_F(OpenMarks, FallWithTheMovementButtonsAndAClickOnTheForm) {
  for (const bool byClick : {true, false}) {
    bar("barLS", 2).press("SurfaceColorFill");
    ASSERT_TRUE(isOpen());
    if (byClick) {
      toolbar().userClicks();
    } else {
      bar("barMove", 1).press("NudgeUp");
    }
    take();
    fill().press("SurfaceColorFill");  // taken for the first press: it shows the popup once more
    EXPECT_EQ(take().front(), "barLS(2): SurfaceColorFill state 2");
    fill().press("SurfaceColorFill");
  }
}

TEST_F(OpenMarks, OfTheStyleButtonsFallOnAnyWorldButton) {
  constexpr const char* keys[] = {"LineThickness", "LineColorFill", "SurfaceColorFill", "Background"};
  for (int i = 0; i < 4; ++i) {
    bar("barLS", i).press(keys[i]);
    bar("barWorld").buttonPress("unknown");
    take();
    bar("barLS", i).press(keys[i]);
    EXPECT_EQ(take().front(), "barLS(" + std::to_string(i) + "): " + keys[i] + " state 2");
  }
}

TEST_F(OpenMarks, OfTheLightFallsOnAStyleButton) {
  bar("barWorld").press("Lighting");
  fill().press("SurfaceColorFill");
  take();
  bar("barWorld").press("Lighting");
  EXPECT_EQ(take().front(), "barWorld(0): Lighting state 2");
}

TEST_F(OpenMarks, OfTheLightFallsWhenItsPopupClosesByItself) {
  pressWithMouse(bar("barWorld"), "Lighting");
  form("frmLighting").userCloses();
  pressWithMouse(bar("barWorld"), "Lighting");
  EXPECT_TRUE(library.lighting.isVisible());
  pressWithMouse(bar("barWorld"), "Lighting");
  EXPECT_FALSE(library.lighting.isVisible());
}

TEST_F(OpenMarks, OfTheLightStaysWhenHelpIsAsked) {
  bar("barWorld").press("Lighting");
  bar("barWorld", 2).press("Help");
  bar("barWorld").press("Lighting");
  EXPECT_FALSE(library.lighting.isVisible());
}

TEST_F(OpenMarks, FallWhenTheToolbarHides) {
  open();
  control->ToolbarHide();
  show();
  expectNextPressOpens();
}

TEST_F(OpenMarks, FallWhenTheApplicationIsDeactivated) {
  open();
  platform.windows.activateApplication(false);
  platform.windows.activateApplication(true);
  expectNextPressOpens();
}

TEST_F(OpenMarks, FollowManyQuickPresses) {
  for (int i = 0; i < 20; ++i) {
    press();
    EXPECT_EQ(isOpen(), i % 2 == 0);
    EXPECT_EQ(fill().button("SurfaceColorFill").state, isOpen() ? buttonDown : buttonUp);
  }
}

// A choice is told to the toolbar, which forgets every popup; a lamp and the style's colour are not told.
TEST_F(OpenMarks, OfTheLightFallWithAChoiceInAnotherPopup) {
  const auto pressPart = [this](const char* picture) { form("frmSurfaceColors").picture(picture).pressPart(0); };
  const auto pressThickness = [this] { form("frmLineThicknessMenu").bar("barThick").press("Thin"); };
  const struct {
    const char* key;
    std::function<void()> choose;
    int bar;
    int state;  // of the Lighting button at its next press
  } cases[] = {{"SurfaceColorFill", [&] { pressPart("pnlColor"); }, 2, buttonDown},
               {"SurfaceColorFill", [&] { pressPart("picMoreColors"); }, 2, buttonDown},
               {"LineThickness", pressThickness, 0, buttonDown},
               {"SurfaceColorFill", [&] { pressPart("picLSSwatch"); }, 2, buttonUp}};
  for (const auto& c : cases) {
    platform.boxes.colorChoices = {255};
    bar("barLS", c.bar).press(c.key);
    bar("barWorld").press("Lighting");
    ASSERT_TRUE(library.lighting.isVisible());
    c.choose();
    take();
    bar("barWorld").press("Lighting");
    EXPECT_EQ(take().front(), "barWorld(0): Lighting state " + std::to_string(c.state)) << c.key;
    control->ToolbarHide();
    show();
  }
}

TEST_F(OpenMarks, AreAllSetOrAllClearedByTheReportOfAChoice) {
  library.toolbar.afterChoice(1);
  bar("barLS", 1).press("LineColorFill");
  EXPECT_FALSE(library.lineColors.isVisible());
  library.toolbar.afterChoice(0);
  bar("barLS", 1).press("LineColorFill");
  EXPECT_TRUE(library.lineColors.isVisible());
}

}  // namespace
}  // namespace nerida

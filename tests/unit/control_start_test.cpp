// What creating a control does to the library: its steps in order, its failures, a second control in the same process.
#include "tests/unit/desk.h"
#include "tests/unit/spoilt_windows.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ControlStart : public DeskTest {
 protected:
  Lines startLines() {
    create();
    return withoutCatalog(withoutBars(take()));
  }
};

TEST_F(ControlStart, GoesThroughItsStepsUnderAnHourglass) {
  EXPECT_THAT(startLines(),
              ElementsAre("pointer 11", "frmToolbar: load", "frmLineThicknessMenu: load", "frmSurfaceColors: load",
                          "frmLighting: load", "frmBrowser: load", "pointer 0"));
  EXPECT_EQ(platform.screen.pointer, MousePointer::standard);
}

TEST_F(ControlStart, MarksAsLoadedWhatItLoadedAndNothingAsShown) {
  library.state.gFormShown.fill(true);
  create();
  EXPECT_THAT(library.state.gFormLoaded,
              ElementsAre(true, true, false, false, true, false, false, false, false, true, true));
  EXPECT_THAT(library.state.gFormShown, testing::Each(false));
}

TEST_F(ControlStart, RegistersEveryFormAtItsPlace) {
  create();
  EXPECT_THAT(library.state.gForms, ElementsAre(&library.toolbar, &library.lineThicknessMenu, &library.lineColors,
                                                nullptr, &library.surfaceColors, nullptr, &library.backgroundColors,
                                                nullptr, &library.animation, &library.lighting, &library.browser));
}

TEST_F(ControlStart, ShowsNoWindowAndTouchesNoModel) {
  create();
  for (const headless::FormWindow* window : platform.windows.living) EXPECT_FALSE(window->isVisible());
  EXPECT_THAT(takeModelCalls(), testing::IsEmpty());
}

struct TwipsCase {
  double read;
  std::int32_t kept;
};

class ControlStartTwips : public testing::TestWithParam<TwipsCase>, protected Desk {};

TEST_P(ControlStartTwips, AreRoundedHalfToEvenAndNeverZero) {
  platform.screen.horizontal = platform.screen.vertical = [] { return GetParam().read; };
  create();
  EXPECT_EQ(library.state.gTwipsPerPixelX, GetParam().kept);
  EXPECT_EQ(library.state.gTwipsPerPixelY, GetParam().kept);
}

INSTANTIATE_TEST_SUITE_P(Scales, ControlStartTwips,
                         testing::Values(TwipsCase{15, 15}, TwipsCase{12, 12}, TwipsCase{7.5, 8}, TwipsCase{12.5, 12},
                                         TwipsCase{2.5, 2}, TwipsCase{0.5, 1}, TwipsCase{0, 1}, TwipsCase{1, 1}));

TEST_F(ControlStart, KeepsTheAxesApart) {
  platform.screen.vertical = [] { return 20.0; };
  create();
  EXPECT_EQ(library.state.gTwipsPerPixelX, 15);
  EXPECT_EQ(library.state.gTwipsPerPixelY, 20);
}

TEST_F(ControlStart, AScreenThatCannotBeMeasuredCountsAsOneTwipPerPixelForGood) {
  int reads = 0;
  platform.screen.vertical = [&]() -> double {
    ++reads;
    throw Error(5);
  };
  answerBoxes(1);
  create();
  EXPECT_THAT(takeBoxes(), ElementsAre(toolbarBox));
  EXPECT_EQ(library.state.gTwipsPerPixelX, 15);
  EXPECT_EQ(library.state.gTwipsPerPixelY, 1);
  const NeridaWindow second(library);
  EXPECT_EQ(reads, 1);
}

TEST_F(ControlStart, AFailedHorizontalReadingDoesNotKeepTheVerticalOneFromHappening) {
  platform.screen.horizontal = []() -> double { throw Error(5); };
  answerBoxes(1);
  create();
  EXPECT_EQ(library.state.gTwipsPerPixelX, 1);
  EXPECT_EQ(library.state.gTwipsPerPixelY, 15);
}

TEST_F(ControlStart, TooManyTwipsForANumberAreAFailureOfThatStep) {
  platform.screen.horizontal = [] { return 1e12; };
  answerBoxes(1);
  create();
  EXPECT_EQ(library.state.gTwipsPerPixelX, 1);
}

TEST_F(ControlStart, TriesAStepAgainWhileMemoryIsShort) {
  int reads = 0;
  platform.screen.horizontal = [&] {
    if (++reads < 3) throw Error(error::outOfMemory);
    return 12.0;
  };
  answerBoxes(2);
  create();
  EXPECT_THAT(takeBoxes(), ElementsAre(memoryBox, memoryBox));
  EXPECT_EQ(library.state.gTwipsPerPixelX, 12);
}

TEST_F(ControlStart, InsistsOnMemoryUntilSomebodyGivesUp) {
  platform.windows.creationFailures["frmLighting"] = error::outOfMemory;
  answerBoxes(3);
  EXPECT_THROW(create(), TestEnded);
  EXPECT_THAT(takeBoxes(), ElementsAre(memoryBox, memoryBox, memoryBox, memoryBox));
}

TEST_F(ControlStart, LoadsAWindowAgainWhenMemoryIsBack) {
  platform.windows.creationFailures["frmToolbar"] = error::outOfMemory;
  platform.boxes.duringBox = [this] { platform.windows.creationFailures.clear(); };
  answerBoxes(1);
  EXPECT_THAT(startLines(),
              ElementsAre("pointer 11", memoryBox, "frmToolbar: load", "frmLineThicknessMenu: load",
                          "frmSurfaceColors: load", "frmLighting: load", "frmBrowser: load", "pointer 0"));
}

TEST_F(ControlStart, AFormThatCannotBeLoadedDoesNotKeepTheNextFromLoading) {
  platform.windows.creationFailures["frmLineThicknessMenu"] = 5;
  answerBoxes(1);
  EXPECT_THAT(startLines(), ElementsAre("pointer 11", "frmToolbar: load", toolbarBox, "frmSurfaceColors: load",
                                        "frmLighting: load", "frmBrowser: load", "pointer 0"));
  EXPECT_FALSE(library.state.gFormLoaded[lineThicknessIndex]);
  EXPECT_EQ(library.state.gForms[lineThicknessIndex], &library.lineThicknessMenu);
}

TEST_F(ControlStart, LoadsTheCatalogInTheEndIfItFailedBefore) {
  platform.windows.creationFailures["frmBrowser"] = 5;
  platform.boxes.duringBox = [this] { platform.windows.creationFailures.clear(); };
  answerBoxes(1);
  EXPECT_THAT(startLines(),
              ElementsAre("pointer 11", "frmToolbar: load", "frmLineThicknessMenu: load", "frmSurfaceColors: load",
                          "frmLighting: load", toolbarBox, "frmBrowser: load", "pointer 0"));
  EXPECT_TRUE(library.state.gFormLoaded[catalogIndex]);
  EXPECT_FALSE(library.state.gFormShown[catalogIndex]);
}

TEST_F(ControlStart, ReadsPathsBeforeColoursAndFormsAndTellsUnderTheHourglass) {
  platform.files.files = platform.files.pictures = {"\\zpcatbut.bmp"};
  platform.registry.keys.clear();
  platform.boxes.duringBox = [this] { EXPECT_EQ(platform.screen.pointer, MousePointer::hourglass); };
  answerBoxes(1);
  const Lines lines = startLines();
  ASSERT_GE(lines.size(), 3U);
  EXPECT_EQ(lines[0], "pointer 11");
  EXPECT_EQ(lines[1], "box [Zephra Catalog] Registry access error at Software: 2");
  EXPECT_EQ(lines[2], "frmToolbar: load");
  EXPECT_EQ(lines.back(), "pointer 0");
}

TEST_F(ControlStart, LoadsTheRecentColours) {
  platform.settings.texts = {{{"Toolbar", "PrevColor0"}, "255"}, {{"Toolbar", "LastColor"}, "0"}};
  create();
  EXPECT_EQ(library.recentColors.PrevColor[0], 255);
  EXPECT_EQ(library.recentColors.LastColor, 0);
}

TEST_F(ControlStart, ASecondControlKeepsTheScreensFactorsAndReadsTheRestAnew) {
  platform.settings.texts = {{{"Toolbar", "PrevColor0"}, "255"}};
  create();
  take();
  platform.screen.horizontal = platform.screen.vertical = [] { return 10.0; };
  platform.settings.texts.clear();
  platform.registry.keys["Software\\Tarnwell\\Zephra"] = {{"Dic", "D:\\Other"}};
  const NeridaWindow second(library);
  EXPECT_THAT(take(), ElementsAre("pointer 11", "pointer 0"));  // every form is loaded already
  EXPECT_EQ(library.state.gTwipsPerPixelX, 15);
  EXPECT_EQ(library.state.gTwipsPerPixelY, 15);
  EXPECT_EQ(library.recentColors.PrevColor[0], 0);
  EXPECT_EQ(library.paths.DictionaryPath, "D:\\Other");
  EXPECT_EQ(library.paths.HelpPath, "");
}

TEST_F(ControlStart, ASecondControlMarksLoadedFormsAsLoadedAgain) {
  create();
  library.state.gModelObject = model;
  library.animation.ShowSelf(1, 2);
  const NeridaWindow second(library);
  EXPECT_THAT(library.state.gFormLoaded,
              ElementsAre(true, true, false, false, true, false, false, false, true, true, true));
  EXPECT_THAT(library.state.gFormShown, testing::Each(false));
}

TEST(ControlStartWithASpoiltToolbar, ReportsItAndLeavesTheFormUnmarkedAsFarAsItWasBuilt) {
  headless::HeadlessPlatform platform;
  SpoiltWindows windows(platform.windows, {"frmToolbar", "barWorld", "Default", "Lighting", "6,Lighting.bmp,0,0"});
  platform.registry.keys = {{"Software", {}}};
  Library library({platform.screen, windows, platform.boxes, platform.registry, platform.settings, platform.shell,
                   platform.files, platform.search});
  platform.files.files = platform.files.pictures = {"\\zpcatbut.bmp"};
  platform.boxes.answers.assign(3, PromptAnswer::ok);
  auto control = std::make_unique<NeridaWindow>(library);
  EXPECT_THAT(withoutCatalog(withoutBars(platform.transcript.take())),
              ElementsAre("pointer 11", HasSubstr("Registry access error at Tarnwell"), "frmToolbar: load", errorBox,
                          "frmLineThicknessMenu: load", "frmSurfaceColors: load", "frmLighting: load",
                          "frmBrowser: load", "pointer 0"));
  EXPECT_FALSE(library.state.gFormLoaded[toolbarIndex]);
  headless::FormWindow* toolbar = platform.windows.find("frmToolbar");
  ASSERT_NE(toolbar, nullptr);
  EXPECT_THAT(toolbar->bar("barLS", 3).keys(), ElementsAre("Background"));
  EXPECT_EQ(toolbar->bar("barWorld", 0).button("Move").caption, "Move");
  EXPECT_TRUE(toolbar->bar("barMove", 0).layouts.empty());

  {
    const NeridaWindow second(library);
    EXPECT_FALSE(library.state.gFormLoaded[toolbarIndex]);  // registering it does not make it good
  }
  control.reset();
  EXPECT_TRUE(platform.windows.living.empty());
}

}  // namespace
}  // namespace nerida

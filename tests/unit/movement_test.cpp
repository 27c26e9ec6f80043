// The movement groups and the preset views: which button sends what.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct KeyCase {
  int bar;
  const char* key;
  Lines calls;
};

class MovementKey : public testing::TestWithParam<KeyCase>, protected Desk {};

TEST_P(MovementKey, SendsItsCallsAndNothingElse) {
  createInitAndShow();
  bar("barMove", GetParam().bar).press(GetParam().key);
  EXPECT_EQ(take(), GetParam().calls);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, MovementKey,
    testing::Values(KeyCase{0, "ResetModel", {"model: ResetHome", "model: RefreshDisplay"}},
                    KeyCase{1, "NudgeUp", {"model: MoveY 1%"}}, KeyCase{1, "NudgeDown", {"model: MoveY -1%"}},
                    KeyCase{1, "NudgeLeft", {"model: MoveX 1%"}}, KeyCase{1, "NudgeRight", {"model: MoveX -1%"}},
                    KeyCase{2, "RotateUp", {"model: RotateX 2%"}}, KeyCase{2, "RotateDown", {"model: RotateX -2%"}},
                    KeyCase{2, "RotateLeft", {"model: RotateY 2%"}}, KeyCase{2, "RotateRight", {"model: RotateY -2%"}},
                    KeyCase{2, "RotateClockwise", {"model: RotateZ 2%"}},
                    KeyCase{2, "RotateCounter", {"model: RotateZ -2%"}},
                    KeyCase{3, "Shrink", {"model: ScaleModel -1%"}}, KeyCase{3, "Enlarge", {"model: ScaleModel 1%"}}));

class Movement : public DeskTest {
 protected:
  void SetUp() override { createInitAndShow(); }

  // What choosing an entry sends; the line about the menu itself aside.
  Lines choose(int item) {
    platform.windows.menuChoices = {item};
    bar("barMove", 0).press("PresetDropdown");
    return takeModelCalls();
  }
};

TEST_F(Movement, AnUnknownKeyMakesNoCall) {
  for (const char* key : {"Move", "nudgeup", "NudgeUp ", ""}) bar("barMove", 1).buttonPress(key);
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(Movement, TheTypedAmountChangesNothing) {
  toolbar().textBox("txtNudgeAmt").setText("7");
  take();
  bar("barMove", 1).press("NudgeUp");
  EXPECT_THAT(take(), ElementsAre("model: MoveY 1%"));
}

TEST_F(Movement, TheMenuHangsBelowTheFirstGroupAndEndsAtItsRightEdge) {
  const Bounds group = bar("barMove", 0).bounds();
  platform.windows.menuChoices = {-1};
  bar("barMove", 0).press("PresetDropdown");
  EXPECT_THAT(take(), ElementsAre("frmToolbar: menu ending at " + std::to_string((group.left + group.width).value) +
                                  ", " + std::to_string((group.top + group.height).value)));
  EXPECT_THAT(platform.windows.lastMenu, ElementsAre("Reset &Model", "-", "to &Front", "to &Back ", "to &Right Side",
                                                     "to &Left Side", "to &Top", "to &Bottom "));
}

struct PresetCase {
  int item;
  Lines calls;
};

class Preset : public testing::TestWithParam<PresetCase>, protected Desk {};

TEST_P(Preset, SendsItsAnglesAndRedraws) {
  createInitAndShow();
  platform.windows.menuChoices = {GetParam().item};
  bar("barMove", 0).press("PresetDropdown");
  EXPECT_EQ(takeModelCalls(), GetParam().calls);
}

INSTANTIATE_TEST_SUITE_P(
    Items, Preset,
    testing::Values(PresetCase{-1, {}},  // the menu was left without a choice
                    PresetCase{0, {"model: ResetHome", "model: RefreshDisplay"}},
                    PresetCase{1, {"model: RefreshDisplay"}},
                    PresetCase{2, {"model: SetOrientation 0%, 0%, 0%", "model: RefreshDisplay"}},
                    PresetCase{3, {"model: SetOrientation 0%, 18000%, 0%", "model: RefreshDisplay"}},
                    PresetCase{4, {"model: SetOrientation 0%, 9000%, 0%", "model: RefreshDisplay"}},
                    PresetCase{5, {"model: SetOrientation 0%, 27000%, 0%", "model: RefreshDisplay"}},
                    PresetCase{6, {"model: SetOrientation 27000%, 0%, 0%", "model: RefreshDisplay"}},
                    PresetCase{7, {"model: SetOrientation 9000%, 0%, 0%", "model: RefreshDisplay"}},
                    PresetCase{8, {"model: RefreshDisplay"}}, PresetCase{32767, {"model: RefreshDisplay"}}));

TEST_F(Movement, AFailingPresetIsSkippedAndTheRedrawStillSent) {
  model->failures.emplace("SetOrientation", Error(5));
  model->failures.emplace("ResetHome", Error(7));
  EXPECT_THAT(choose(2), ElementsAre("model: SetOrientation 0%, 0%, 0%", "model: RefreshDisplay"));
  EXPECT_THAT(choose(0), ElementsAre("model: ResetHome", "model: RefreshDisplay"));
  model->failures.emplace("RefreshDisplay", Error(5));
  choose(3);
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(Movement, AFailingResetIsReportedWithoutARedraw) {
  model->failures.emplace("ResetHome", Error(5));
  answerBoxes(1);
  bar("barMove", 0).press("ResetModel");
  EXPECT_THAT(take(), ElementsAre("model: ResetHome", errorBox));
}

TEST_F(Movement, AFailingStepIsReportedAndTheToolbarStaysUsable) {
  model->functions.erase("MoveX");
  answerBoxes(1);
  bar("barMove", 1).press("NudgeLeft");
  EXPECT_THAT(take(), ElementsAre("model: MoveX 1%", errorBox));
  bar("barMove", 1).press("NudgeUp");
  EXPECT_THAT(take(), ElementsAre("model: MoveY 1%"));
}

TEST_F(Movement, ShortMemoryIsToldAsSuch) {
  model->failures.emplace("ScaleModel", Error(error::outOfMemory));
  answerBoxes(1);
  bar("barMove", 3).press("Enlarge");
  EXPECT_THAT(takeBoxes(), ElementsAre(memoryBox));
}

TEST_F(Movement, AMenuWhoseToolbarGoesMeanwhileSendsNothing) {
  platform.windows.duringMenu = [this] { control->ToolbarDispose(); };
  EXPECT_THAT(choose(2), testing::Not(testing::Contains("model: RefreshDisplay")));
  EXPECT_TRUE(platform.windows.living.empty());
}

}  // namespace
}  // namespace nerida

// How the toolbar adapts to a model: which buttons and swatches it offers, the indicator, the caption, the style.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;

struct FlagsCase {
  Value flags;
  bool surfaceButton, lineButton, thicknessButton;
};

class InterfaceFlagsTest : public testing::TestWithParam<FlagsCase>, protected Desk {};

TEST_P(InterfaceFlagsTest, ChooseBetweenEachButtonAndItsSwatch) {
  create();
  model->values["InterfaceFlags"] = GetParam().flags;
  EXPECT_EQ(init(), 0);
  EXPECT_EQ(bar("barLS", 2).isVisible(), GetParam().surfaceButton);
  EXPECT_EQ(toolbar().pictureBox("picSurface", 0).isVisible(), !GetParam().surfaceButton);
  EXPECT_EQ(bar("barLS", 1).isVisible(), GetParam().lineButton);
  EXPECT_EQ(toolbar().pictureBox("picLine", 0).isVisible(), !GetParam().lineButton);
  EXPECT_EQ(bar("barLS", 0).isVisible(), GetParam().thicknessButton);
  EXPECT_EQ(toolbar().pictureBox("picLineThick", 0).isVisible(), !GetParam().thicknessButton);
  EXPECT_TRUE(bar("barLS", 3).isVisible());
}

INSTANTIATE_TEST_SUITE_P(
    Flags, InterfaceFlagsTest,
    testing::Values(FlagsCase{std::int32_t{0}, false, false, false}, FlagsCase{std::int32_t{1}, true, false, false},
                    FlagsCase{std::int32_t{2}, false, true, false}, FlagsCase{std::int32_t{3}, true, true, false},
                    FlagsCase{std::int32_t{4}, false, false, false},  // kept, shown nowhere
                    FlagsCase{std::int32_t{8}, false, false, false}, FlagsCase{std::int32_t{16}, false, false, true},
                    FlagsCase{std::int32_t{17}, true, false, true}, FlagsCase{std::int32_t{18}, false, true, true},
                    FlagsCase{std::int32_t{19}, true, true, true}, FlagsCase{std::int32_t{-1}, true, true, true},
                    FlagsCase{std::int16_t{19}, true, true, true}, FlagsCase{19.4, true, true, true},
                    FlagsCase{std::string("19"), true, true, true}, FlagsCase{true, true, true, true},
                    FlagsCase{Value(), false, false, false}));

class ToolbarInit : public DeskTest {
 protected:
  void SetUp() override { createAndInit(); }
};

TEST_F(ToolbarInit, SetsVisibilityInItsOrderEvenWhenItDoesNotChange) {
  model->values["InterfaceFlags"] = std::int32_t{19};
  library.toolbar.InitSelf();
  take();
  library.toolbar.InitSelf();
  EXPECT_THAT(take(), ElementsAre("model: InterfaceFlags", "picSurface: hidden", "barLS(2): visible", "picLine: hidden",
                                  "barLS(1): visible", "picLineThick: hidden", "barLS(0): visible",
                                  "model: AnimationFrameCount", "picAni: visible", "model: ModelName",
                                  "frmToolbar: caption Zephra Toolbar: Windmill", "model: LookStyleName",
                                  "model: IsToolbarShowing"));
}

TEST_F(ToolbarInit, AnAnimatedModelHidesTheIndicatorAndShowsItsFrameCountedFromZero) {
  model->values["AnimationFrameCount"] = std::int32_t{1};
  model->values["AnimationCurrentFrame"] = std::int32_t{0};
  library.toolbar.InitSelf();
  EXPECT_FALSE(toolbar().pictureBox("picAni", 0).isVisible());
  EXPECT_EQ(form("frmAnimation").textBox("txtFrame").text(), "0");
  EXPECT_FALSE(form("frmAnimation").isVisible());
}

TEST_F(ToolbarInit, ReadsTheFrameOnlyOfAnAnimatedModel) {
  for (const std::int32_t count : {0, -1}) {
    model->values["AnimationFrameCount"] = count;
    library.toolbar.InitSelf();
    EXPECT_TRUE(toolbar().pictureBox("picAni", 0).isVisible());
  }
  EXPECT_THAT(takeModelCalls(), testing::Not(testing::Contains("model: AnimationCurrentFrame")));
}

TEST_F(ToolbarInit, NeverHidesTheAnimationButton) {
  library.toolbar.InitSelf();
  EXPECT_TRUE(bar("barWorld", 1).isVisible());
}

TEST_F(ToolbarInit, TheIndicatorLiesOverTheAnimationButton) {
  EXPECT_EQ(toolbar().pictureBox("picAni", 0).bounds(), bar("barWorld", 1).bounds());
}

struct NameCase {
  Value name;
  const char* caption;
};

class CaptionTest : public testing::TestWithParam<NameCase>, protected Desk {};

TEST_P(CaptionTest, IsTheTitleAndTheModelsName) {
  create();
  model->values["ModelName"] = GetParam().name;
  EXPECT_EQ(init(), 0);
  EXPECT_EQ(toolbar().caption, GetParam().caption);
}

INSTANTIATE_TEST_SUITE_P(
    Names, CaptionTest,
    testing::Values(NameCase{std::string("Rocket"), "Zephra Toolbar: Rocket"},
                    NameCase{std::string(), "Zephra Toolbar: "}, NameCase{Value(), "Zephra Toolbar: "},
                    NameCase{Value(Null()), "Zephra Toolbar: "}, NameCase{std::int32_t{12}, "Zephra Toolbar: 12"},
                    NameCase{std::string("\xC3\x84ther & Co."), "Zephra Toolbar: \xC3\x84ther & Co."}));

TEST_F(ToolbarInit, FillsTheStyleListOnlyWhenItIsEmpty) {
  library.toolbar.InitSelf();
  EXPECT_THAT(takeModelCalls(), testing::Not(testing::Contains(testing::StartsWith("model: GetLookStyleList"))));
  styles().clear();
  library.toolbar.InitSelf();
  const Lines calls = takeModelCalls();
  EXPECT_EQ(std::count_if(calls.begin(), calls.end(),
                          [](const std::string& line) { return line.starts_with("model: GetLookStyleList"); }),
            1);
  EXPECT_THAT(styles().entries, ElementsAre("Basic Draw", "Shaded", "Ink Outline"));
}

TEST_F(ToolbarInit, TheShowingFlagIsReadAndHasNoEffect) {
  model->values["IsToolbarShowing"] = true;
  library.toolbar.InitSelf();
  const Lines calls = takeModelCalls();
  EXPECT_EQ(calls.back(), "model: IsToolbarShowing");
  EXPECT_FALSE(control->IsToolbarVisible());
}

class BadValue : public testing::TestWithParam<std::tuple<const char*, int>>, protected Desk {
 protected:
  Value badValue() {
    switch (std::get<1>(GetParam())) {
      case 0:
        return Value(ObjectRef(std::make_shared<headless::ScriptedObject>(platform.transcript)));
      case 1:
        return textArray({"a"});
      case 2:
        return std::string("no number");
      default:
        return Null();
    }
  }
};

TEST_P(BadValue, IsToldAsAFailureOfTheToolbarAndTriedAgain) {
  create();
  model->values["AnimationFrameCount"] = std::int32_t{3};
  const std::string member = std::get<0>(GetParam());
  const Value good = model->values[member];
  model->values[member] = badValue();
  platform.boxes.duringBox = [&] { model->values[member] = good; };
  answerBoxes(1);
  EXPECT_EQ(init(), error::typeMismatch);
  EXPECT_THAT(takeBoxes(), ElementsAre(toolbarBox));
  EXPECT_EQ(toolbar().caption, "Zephra Toolbar: Windmill");
}

INSTANTIATE_TEST_SUITE_P(Numbers, BadValue,
                         testing::Combine(testing::Values("InterfaceFlags", "AnimationFrameCount",
                                                          "AnimationCurrentFrame"),
                                          testing::Range(0, 4)));
INSTANTIATE_TEST_SUITE_P(Booleans, BadValue,
                         testing::Combine(testing::Values("IsCatalogShowing"), testing::Range(0, 3)));
INSTANTIATE_TEST_SUITE_P(Texts, BadValue,
                         testing::Combine(testing::Values("ModelName", "LookStyleName"), testing::Range(0, 2)));

TEST_F(ToolbarInit, ANumberThatIsTooLargeIsAnOverflow) {
  model->values["InterfaceFlags"] = 3e9;
  platform.boxes.duringBox = [&] { model->values["InterfaceFlags"] = std::int32_t{0}; };
  answerBoxes(1);
  EXPECT_EQ(init(), error::overflow);
}

TEST_F(ToolbarInit, AModelThatNamesAnotherStyleEachTimeEndsInAMessageNotInACrash) {
  int reads = 0;
  model->hooks["LookStyleName"] = [&] {
    model->values["LookStyleName"] = std::string(++reads % 2 ? "Ink Outline" : "Shaded");
  };
  answerBoxes(1);
  EXPECT_EQ(init(), 0);
  EXPECT_THAT(takeBoxes(), ElementsAre(errorBox));
  EXPECT_LT(reads, 50);
}

}  // namespace
}  // namespace nerida

// The four style buttons and the Lighting button: whole presses, first and second.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

struct StyleButton {
  const char* key;
  int bar;
  const char* form;
  std::size_t index;
  Popup& (*popup)(Library&);
};

void PrintTo(const StyleButton& button, std::ostream* out) { *out << button.key; }

const StyleButton styleButtons[] = {
    {"LineThickness", 0, "frmLineThicknessMenu", 1, [](Library& l) -> Popup& { return l.lineThicknessMenu; }},
    {"LineColorFill", 1, "frmLineColors", 2, [](Library& l) -> Popup& { return l.lineColors; }},
    {"SurfaceColorFill", 2, "frmSurfaceColors", 4, [](Library& l) -> Popup& { return l.surfaceColors; }},
    {"Background", 3, "frmBackgroundColors", 6, [](Library& l) -> Popup& { return l.backgroundColors; }},
};

class StylePopups : public testing::TestWithParam<StyleButton>, protected Desk {
 protected:
  void SetUp() override {
    enableStyleButtons();
    createInitAndShow();
    popup().load();
    take();
  }
  Popup& popup() { return GetParam().popup(library); }
  headless::Bar& owner() { return bar("barLS", GetParam().bar); }
  std::string state(int value) const {
    return "barLS(" + std::to_string(GetParam().bar) + "): " + GetParam().key + " state " + std::to_string(value);
  }
};

TEST_P(StylePopups, FirstPressLatchesTheButtonAndShowsThePopup) {
  owner().press(GetParam().key);
  const Lines lines = take();
  EXPECT_EQ(lines.front(), state(2));
  EXPECT_THAT(lines, Contains(testing::StartsWith(std::string(GetParam().form) + ": show topmost at")));
  EXPECT_TRUE(library.state.gFormShown[GetParam().index]);
}

TEST_P(StylePopups, SecondPressReleasesItAndClosesThePopup) {
  owner().press(GetParam().key);
  take();
  owner().press(GetParam().key);
  EXPECT_THAT(take(), ElementsAre(state(0), std::string(GetParam().form) + ": hide", foregroundLine(), state(0)));
  owner().press(GetParam().key);
  EXPECT_TRUE(popup().isVisible());
}

TEST_P(StylePopups, AMousePressOnTheButtonOfTheOpenPopupOnlyClosesIt) {
  for (int round = 0; round < 3; ++round) {
    pressWithMouse(owner(), GetParam().key);
    EXPECT_TRUE(popup().isVisible());
    pressWithMouse(owner(), GetParam().key);
    EXPECT_FALSE(popup().isVisible());
    EXPECT_EQ(owner().button(GetParam().key).state, buttonUp);
  }
}

TEST_P(StylePopups, OnlyItsClosingIsCounted) {
  for (int i = 0; i < 32767; ++i) library.toolbar.KillChild();
  for (const bool fits : {true, false}) {
    owner().press(GetParam().key);
    ASSERT_TRUE(popup().isVisible());
    answerBoxes(fits ? 0 : 1);
    take();
    owner().press(GetParam().key);
    EXPECT_EQ(takeBoxes(), fits ? Lines{} : Lines{errorBox});
  }
}

TEST_P(StylePopups, APopupThatCannotShowLeavesTheButtonUp) {
  popup().unload();
  platform.windows.creationFailures[GetParam().form] = error::outOfMemory;
  answerBoxes(1);
  owner().press(GetParam().key);
  EXPECT_THAT(takeBoxes(), ElementsAre(memoryBox));
  EXPECT_EQ(owner().button(GetParam().key).state, buttonUp);
}

INSTANTIATE_TEST_SUITE_P(Buttons, StylePopups, testing::ValuesIn(styleButtons));

class StylePress : public DeskTest {
 protected:
  void SetUp() override {
    enableStyleButtons();
    createInitAndShow();
  }
};

TEST_F(StylePress, OfAnUnknownKeyDoesNothing) {
  take();
  for (const char* key : {"", "Lighting", "linethickness"}) bar("barLS", 0).buttonPress(key);
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(StylePress, OfAPaletteWhoseModelFailsLeavesNoLatchedButtonAndNoMessage) {
  model->failures.emplace("IsSurfaceColorDefault", Error(5));
  bar("barLS", 2).press("SurfaceColorFill");
  EXPECT_THAT(take(), Contains("barLS(2): SurfaceColorFill state 0"));
  model->failures.clear();
  bar("barLS", 2).press("SurfaceColorFill");
  EXPECT_TRUE(library.surfaceColors.isVisible());
}

TEST_F(StylePress, OfLightingTogglesItsPopup) {
  bar("barWorld").press("Lighting");
  EXPECT_TRUE(library.lighting.isVisible());
  EXPECT_EQ(bar("barWorld").button("Lighting").state, buttonDown);
  bar("barWorld").press("Lighting");
  EXPECT_FALSE(library.lighting.isVisible());
  EXPECT_EQ(bar("barWorld").button("Lighting").state, buttonUp);
}

TEST_F(StylePress, OfAnimationShowsItsPopupAgainAndAgain) {
  model->values["AnimationFrameCount"] = std::int32_t{10};
  library.toolbar.InitSelf();
  bar("barWorld", 1).press("Animation");
  bar("barWorld", 1).press("Animation");
  EXPECT_TRUE(library.animation.isVisible());
}

TEST_F(StylePress, OfAnimationIsNotCounted) {
  for (int i = 0; i < 32767; ++i) library.toolbar.KillChild();
  bar("barWorld").buttonPress("Animation");
  library.animation.HideSelf();
  bar("barWorld").buttonPress("Animation");
  EXPECT_THROW(library.animation.HideSelf(), Error);
}

TEST_F(StylePress, OfLightingMakesRoomForOneMoreClosing) {
  for (int i = 0; i < 32768; ++i) library.toolbar.KillChild();
  for (int round = 0; round < 3; ++round) {
    bar("barWorld").press("Lighting");
    bar("barWorld").press("Lighting");
    EXPECT_FALSE(library.lighting.isVisible());
  }
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(StylePress, OfLightingAfter32767OpeningsIsAnErrorAndOpensNothing) {
  for (int i = 0; i < 32767; ++i) {
    bar("barWorld").buttonPress("Lighting");
    library.toolbar.afterChoice(0);
  }
  library.lighting.unload();
  take();
  answerBoxes(1);
  bar("barWorld").press("Lighting");
  EXPECT_THAT(take(), ElementsAre(errorBox));
  EXPECT_FALSE(library.lighting.isVisible());
}

TEST_F(StylePress, AChoiceOfAStyleForgetsTheLightOnly) {
  bar("barWorld").press("Lighting");
  styles().choose("Ink Outline");
  take();
  bar("barWorld").press("Lighting");
  EXPECT_THAT(take(), Contains("barWorld(0): Lighting state 2"));
}

}  // namespace
}  // namespace nerida

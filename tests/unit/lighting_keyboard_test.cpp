// The picker of the light without a mouse.
#include "tests/unit/lighting_desk.h"

namespace nerida {
namespace {

using testing::IsEmpty;

class LightingKeyboard : public LightingTest {};

TEST_F(LightingKeyboard, ArrowKeysMoveOverTheLampsAsTheyStand) {
  setDirection(-1, -1, 0);
  open();
  EXPECT_FALSE(panel().key(Key::choose));
  EXPECT_TRUE(panel().key(Key::right));
  EXPECT_EQ(barLamp(0).focusedKey, "LightUL");
  EXPECT_TRUE(barLamp(0).arrowKey("LightUL", Key::right));
  EXPECT_EQ(barLamp(0).focusedKey, "LightT");
  EXPECT_TRUE(barLamp(0).arrowKey("LightT", Key::down));
  EXPECT_EQ(centre().focusedKey, "M");
  EXPECT_EQ(centre().shownLayout, "LightM");
  EXPECT_TRUE(centre().arrowKey("M", Key::left));
  EXPECT_EQ(barLamp(3).focusedKey, "LightL");
  EXPECT_EQ(centre().shownLayout, "LightL");
  EXPECT_TRUE(barLamp(3).arrowKey("LightL", Key::left));  // the edge
  EXPECT_EQ(barLamp(3).focusedKey, "LightL");
  EXPECT_FALSE(barLamp(3).arrowKey("LightLD", Key::up));
  EXPECT_THAT(takeModelCalls(), IsEmpty());
}

TEST_F(LightingKeyboard, OpenedByKeyboardStartsOnTheCurrentLamp) {
  setDirection(1, 0, 0);
  open();
  EXPECT_EQ(platform.windows.focus.holder, &panel()) << "nobody uses the keyboard";
  EXPECT_EQ(barLamp(1).focusedKey, "");
  popup().HideSelf();
  platform.windows.focus.isShown = true;
  open();
  EXPECT_EQ(platform.windows.focus.holder, &barLamp(1));
  EXPECT_EQ(barLamp(1).focusedKey, "LightR");
  EXPECT_TRUE(popup().isVisible());
  EXPECT_FALSE(panel().isTabStop) << "nothing shows that the panel has the focus";
}

TEST_F(LightingKeyboard, OpenedByKeyboardOnAnUnlitModelStartsOnTheSwitch) {
  platform.windows.focus.isShown = true;
  openUnlit();
  EXPECT_EQ(platform.windows.focus.holder, &barSwitch());
  EXPECT_EQ(barSwitch().focusedKey, "SwitchOn");
}

TEST_F(LightingKeyboard, OpenedByKeyboardShowsTheFrontAtItsOwnPlace) {
  platform.windows.focus.isShown = true;
  open();
  EXPECT_EQ(platform.windows.focus.holder, &centre());
  EXPECT_EQ(centre().focusedKey, "M");
  EXPECT_EQ(centre().shownLayout, "LightM");
}

TEST_F(LightingKeyboard, TheCentreShowsTheLampInFrontWhileItHasTheKeyboard) {
  setDirection(1, 0, 0);
  open();
  centre().gotFocus();
  EXPECT_EQ(centre().shownLayout, "LightM");
  centre().lostFocus();
  EXPECT_EQ(centre().shownLayout, "LightR");
}

TEST_F(LightingKeyboard, AnUnlitPopupLeadsTheKeyboardToTheSwitch) {
  openUnlit();
  EXPECT_TRUE(panel().key(Key::down));
  EXPECT_EQ(barSwitch().focusedKey, "SwitchOn");
  centre().gotFocus();
  EXPECT_EQ(centre().shownLayout, "Disabled");
}

}  // namespace
}  // namespace nerida

// What the lamps and the switch of the light send to the model, and what they show.
#include "tests/unit/lighting_desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LightingLamps : public LightingTest {};

TEST_F(LightingLamps, ALampReleasesThePreviousOneAndStaysOpen) {
  open();
  barLamp(0).press("LightUL");
  EXPECT_THAT(take(), ElementsAre("barLamp(4): M state 0", "model: SetLightDirection -100&, -100&, 50&",
                                  "barLamp(0): LightUL state 2"));
  barLamp(2).press("LightB");
  EXPECT_THAT(take(), ElementsAre("barLamp(0): LightUL state 0", "model: SetLightDirection 0&, 100&, 0&",
                                  "barLamp(2): LightB state 2"));
  barLamp(2).press("LightB");
  EXPECT_EQ(pressedKeys(), "LightB;");
  EXPECT_TRUE(popup().isVisible());
}

TEST_F(LightingLamps, EveryLampSendsItsDirection) {
  const std::map<std::string, std::string> sent = {{"LightUL", "-100&, -100&, 50&"}, {"LightT", "0&, -100&, 0&"},
                                                   {"LightUR", "100&, -100&, 50&"},  {"LightL", "-100&, 0&, 0&"},
                                                   {"LightR", "100&, 0&, 0&"},       {"LightBL", "-100&, 100&, 50&"},
                                                   {"LightB", "0&, 100&, 0&"},       {"LightBR", "100&, 100&, 50&"}};
  open();
  for (const auto& [key, direction] : sent) {
    barLamp(lampOf(key)->bar).press(key);
    EXPECT_THAT(takeModelCalls(), ElementsAre("model: SetLightDirection " + direction));
    EXPECT_EQ(pressedKeys(), key + ";");
  }
}

TEST_F(LightingLamps, TheCentreIsTheLightFromTheFront) {
  setDirection(-1, -1, 0);
  open();
  centre().hover("UL");  // the cube of the current direction lies there
  EXPECT_EQ(centre().shownLayout, "LightM");
  take();
  centre().press("M");
  EXPECT_THAT(take(), ElementsAre("barLamp(0): LightUL state 0", "model: SetLightDirection 0&, 0&, 100&",
                                  "barLamp(4): show LightM", "barLamp(4): M state 2"));
}

TEST_F(LightingLamps, OtherKeysDoNothing) {
  open();
  for (const char* key : {"UL", "LightULD", "LightNone", "LightM", ""}) centre().buttonPress(key);
  EXPECT_THAT(take(), IsEmpty());
  EXPECT_EQ(pressedKeys(), "M;");
}

TEST_F(LightingLamps, LampsOfAnUnlitModelDoNothing) {
  openUnlit();
  barLamp(0).press("LightULD");
  barLamp(0).buttonPress("LightUL");
  barLamp(0).hover("LightULD");
  centre().hover("LightNone");
  panel().movePointer({1}, {1});
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(LightingLamps, AModelThatRefusesADirectionKeepsTheRememberedOne) {
  open();
  model->failures.emplace("SetLightDirection", Error(error::outOfMemory));
  barLamp(0).press("LightT");
  EXPECT_THAT(take(), ElementsAre("barLamp(4): M state 0", "model: SetLightDirection 0&, -100&, 0&"));
  model->failures.clear();
  panel().movePointer({1}, {1});
  EXPECT_THAT(take(), ElementsAre("barLamp(4): show LightM"));
}

TEST_F(LightingLamps, TheCubePreviewsTheLampUnderThePointerAndReturns) {
  setDirection(1, 0, 0);
  open();
  barLamp(3).hover("LightBL");
  EXPECT_THAT(take(), ElementsAre("barLamp(4): show LightBL"));
  panel().movePointer({900}, {30});
  EXPECT_THAT(take(), ElementsAre("barLamp(4): show LightR"));
  barLamp(0).hover("LightT");
  take();
  window().mouseMoved();
  EXPECT_THAT(take(), ElementsAre("barLamp(4): show LightR"));
}

TEST_F(LightingLamps, TheSwitchKeepsTheDirectionAndThePopup) {
  setDirection(1, 1, 0);
  open();
  barSwitch().press("SwitchOff");
  EXPECT_THAT(take(), ElementsAre("barSwitch: show LightOff", "barLamp(0): show Disabled", "barLamp(1): show Disabled",
                                  "barLamp(2): show Disabled", "barLamp(3): show Disabled", "barLamp(4): show Disabled",
                                  "model: LightIsOn = False"));
  barSwitch().press("SwitchOn");
  EXPECT_THAT(take(), ElementsAre("barSwitch: show LightOn", "barLamp(0): show Enabled", "barLamp(1): show Enabled",
                                  "barLamp(2): show Enabled", "barLamp(3): show Enabled", "barLamp(4): show LightBR",
                                  "barLamp(2): LightBR state 2", "model: LightIsOn = True"));
  EXPECT_TRUE(popup().isVisible());
}

TEST_F(LightingLamps, AnyOtherKeyOfTheSwitchTurnsOn) {
  openUnlit();
  barSwitch().buttonPress("switchoff");
  EXPECT_THAT(takeModelCalls(), ElementsAre("model: LightIsOn = True"));
}

TEST_F(LightingLamps, TheSwitchTurnsBeforeTheModelIsTold) {
  open();
  model->failures.emplace("LightIsOn", Error(5));
  barSwitch().press("SwitchOff");
  take();
  barLamp(0).buttonPress("LightUL");
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(LightingLamps, OpenedUnlitAndSwitchedOnItShinesFromTheFront) {
  openUnlit();
  barSwitch().press("SwitchOn");
  EXPECT_EQ(pressedKeys(), "M;");
}

TEST_F(LightingLamps, TheCubeReturnsWhenThePointerIsOverTheSwitchOrLeavesThePopup) {
  setDirection(1, 0, 0);
  open();
  for (const auto& leave : {std::function<void()>([this] { barSwitch().hover("SwitchOff"); }),
                            std::function<void()>([this] { window().mouseLeft(); })}) {
    barLamp(3).hover("LightBL");
    take();
    leave();
    EXPECT_THAT(take(), ElementsAre("barLamp(4): show LightR"));
  }
}

TEST_F(LightingLamps, TheSwitchIsQuietAboutAModelThatRefuses) {
  open();
  model->failures.emplace("LightIsOn", Error(error::outOfMemory));
  barSwitch().press("SwitchOff");
  EXPECT_EQ(take().back(), "model: LightIsOn = False");
  EXPECT_EQ(barSwitch().shownLayout, "LightOff");
  barSwitch().press("SwitchOn");
  EXPECT_EQ(take().back(), "model: LightIsOn = True");
  EXPECT_EQ(pressedKeys(), "M;");
}

TEST_F(LightingLamps, AModelThatClosesThePopupInsideACallClosesItOnce) {
  const struct {
    const char* member;
    std::function<void()> act;
  } cases[] = {{"SetLightDirection", [this] { barLamp(0).press("LightUL"); }},
               {"LightIsOn", [this] { barSwitch().press("SwitchOff"); }}};
  for (const auto& c : cases) {
    open();
    model->hooks[c.member] = [this] { popup().HideSelf(); };
    c.act();
    model->hooks.clear();
    EXPECT_THAT(take(), testing::Contains("frmLighting: hide").Times(1)) << c.member;
    EXPECT_FALSE(popup().isVisible());
  }
}

TEST_F(LightingLamps, AModelThatDisposesOfTheToolbarInsideACallEndsItQuietly) {
  const struct {
    const char* member;
    std::function<void(const std::string&)> handler;
    const char* key;
  } cases[] = {{"SetLightDirection", barLamp(0).buttonPress, "LightUL"},
               {"LightIsOn", barSwitch().buttonPress, "SwitchOff"}};
  for (const auto& c : cases) {
    open();
    model->hooks[c.member] = [this] { control->ToolbarDispose(); };
    c.handler(c.key);
    model->hooks.clear();
    EXPECT_FALSE(popup().isLoaded()) << c.member;
    EXPECT_THAT(takeBoxes(), IsEmpty()) << c.member;
    createInitAndShow();
  }
}

}  // namespace
}  // namespace nerida

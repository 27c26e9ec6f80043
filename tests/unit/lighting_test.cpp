// The picker of the light: what it shows of the model's light when it opens, and how it closes.
#include <utility>

#include "tests/unit/lighting_desk.h"

namespace nerida {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class Lighting : public LightingTest {};

TEST_F(Lighting, OpensOnALitModelWithItsDirectionPressed) {
  setDirection(30, -5, 80);
  popup().ShowSelf(40, 50);
  EXPECT_THAT(take(), ElementsAre("frmLighting: show topmost at (40, 50)", "model: LightIsOn", "barLamp(4): M state 0",
                                  "model: GetLightDirection ByRef 0&, ByRef 0&, ByRef 0&", "barSwitch: show LightOn",
                                  "barLamp(0): show Enabled", "barLamp(1): show Enabled", "barLamp(2): show Enabled",
                                  "barLamp(3): show Enabled", "barLamp(4): show LightUR", "barLamp(1): LightUR state 2",
                                  "model: LightIsOn = True"));
  EXPECT_TRUE(library.state.gFormShown[lightingIndex]);
  EXPECT_EQ(platform.windows.focus.holder, &panel());
}

TEST_F(Lighting, OpensOnAnUnlitModelGreyed) {
  model->values["LightIsOn"] = std::int16_t{0};
  popup().ShowSelf(40, 50);
  EXPECT_THAT(take(),
              ElementsAre("frmLighting: show topmost at (40, 50)", "model: LightIsOn", "barSwitch: show LightOff",
                          "barLamp(0): show Disabled", "barLamp(1): show Disabled", "barLamp(2): show Disabled",
                          "barLamp(3): show Disabled", "barLamp(4): show Disabled", "model: LightIsOn = False"));
  EXPECT_EQ(platform.windows.focus.holder, &panel());
}

TEST_F(Lighting, AnyTruthIsOn) {
  model->values["LightIsOn"] = std::int32_t{1};
  open();
  EXPECT_EQ(barSwitch().shownLayout, "LightOn");
}

TEST_F(Lighting, LightFromTheFrontShowsAndPressesTheCentre) {
  open();
  EXPECT_EQ(centre().shownLayout, "LightM");
  EXPECT_EQ(pressedKeys(), "M;");
}

TEST_F(Lighting, EveryOpeningShowsOneLampPressed) {
  for (const Lamp& lamp : lamps) {
    setDirection(lamp.direction.x, lamp.direction.y, -7);
    open();
    EXPECT_EQ(pressedKeys(), std::string(lamp.key) + ";");
    EXPECT_EQ(centre().shownLayout, lamp.centreLayout);
    popup().HideSelf();
  }
}

TEST_F(Lighting, ADirectionThatCannotBeReadKeepsThePreviousOne) {
  setDirection(-100, 0, 0);
  open();
  popup().HideSelf();
  setDirection(std::int32_t{100}, std::int32_t{0}, std::int32_t{0}, std::int32_t{5});
  open();
  EXPECT_EQ(pressedKeys(), "LightL;");
  popup().HideSelf();
  setDirection(std::string("right"), std::int32_t{0}, std::int32_t{0});
  open();
  EXPECT_EQ(pressedKeys(), "LightL;");
  popup().HideSelf();
  model->failures.emplace("GetLightDirection", Error(438));
  popup().ShowSelf(1, 1);
  EXPECT_EQ(takeModelCalls().back(), "model: LightIsOn = True");
  EXPECT_EQ(pressedKeys(), "LightL;");
}

TEST_F(Lighting, AnEmptyStatusIsSuccessAndNumbersAreRounded) {
  setDirection(-0.6, 0.4, std::int32_t{0}, Value());
  open();
  EXPECT_EQ(pressedKeys(), "LightL;");
}

TEST_F(Lighting, AFailingModelLeavesItOpenAndQuiet) {
  model->failures.emplace("LightIsOn", Error(error::outOfMemory));
  popup().ShowSelf(1, 1);
  EXPECT_THAT(take(), ElementsAre("frmLighting: show topmost at (1, 1)", "model: LightIsOn"));
  EXPECT_TRUE(library.state.gFormShown[lightingIndex]);
  toolbar().userActivates();
  EXPECT_FALSE(popup().isVisible());
}

TEST_F(Lighting, ClosesOnceWhenTheFocusGoesToAnotherWindow) {
  open();
  toolbar().userActivates();
  EXPECT_EQ(take(), closing());
  EXPECT_FALSE(library.state.gFormShown[lightingIndex]);
  for (const auto& lose : {std::function<void()>([this] { barLamp(2).lostFocus(); }),
                           std::function<void()>([this] { barSwitch().lostFocus(); })}) {
    open();
    lose();
    EXPECT_THAT(take(), IsEmpty());
    platform.screen.active = 0;
    lose();
    EXPECT_EQ(take(), closing());
  }
}

TEST_F(Lighting, EscapeClosesIt) {
  open();
  window().userCloses();
  EXPECT_EQ(take(), closing());
}

TEST_F(Lighting, AModelThatDisposesOfTheToolbarInsideAnyCallEndsItQuietly) {
  for (const char* member : {"LightIsOn", "GetLightDirection"}) {
    model->hooks[member] = [this] { control->ToolbarDispose(); };
    popup().ShowSelf(1, 1);
    EXPECT_FALSE(popup().isLoaded()) << member;
    EXPECT_THAT(take(), Not(Contains(testing::StartsWith("box ")))) << member;
    model->hooks.clear();
    createInitAndShow();
  }
}

TEST_F(Lighting, AnAnswerThatIsNoTruthLeavesItOpenAndQuiet) {
  for (const Value& answer : {Value(std::string("bright")), Value(textArray({"on"}))}) {
    model->values["LightIsOn"] = answer;
    popup().ShowSelf(1, 1);
    EXPECT_THAT(take(), ElementsAre("frmLighting: show topmost at (1, 1)", "model: LightIsOn"));
    EXPECT_EQ(platform.windows.focus.holder, &panel());
    popup().HideSelf();
    take();
  }
}

TEST_F(Lighting, AModelThatCannotBeToldOfItsLightAtOpeningLeavesThePopupAsItIs) {
  setDirection(-1, 1, 0);
  bool asked = false;
  model->hooks["LightIsOn"] = [&] {
    if (std::exchange(asked, true)) throw Error(error::outOfMemory);
  };
  popup().ShowSelf(1, 1);
  EXPECT_EQ(take().back(), "model: LightIsOn = True");
  EXPECT_EQ(pressedKeys(), "LightBL;");
  EXPECT_TRUE(library.state.gFormShown[lightingIndex]);
}

TEST_F(Lighting, OpenedAgainItShowsTheLightAsItIsThen) {
  setDirection(-1, -1, 0);
  open();
  setDirection(1, 1, 0);
  open();
  EXPECT_EQ(pressedKeys(), "LightBR;");
}

TEST_F(Lighting, AModelThatHidesTheToolbarInsideAnyCallLeavesNothingOnTheScreen) {
  for (const char* member : {"LightIsOn", "GetLightDirection"}) {
    model->hooks[member] = [this] { control->ToolbarHide(); };
    popup().ShowSelf(1, 1);
    EXPECT_FALSE(popup().isVisible()) << member;
    EXPECT_FALSE(library.state.gFormShown[lightingIndex]) << member;
    EXPECT_THAT(take(), Not(Contains(testing::StartsWith("box ")))) << member;
    model->hooks.clear();
    show();
  }
}

}  // namespace
}  // namespace nerida

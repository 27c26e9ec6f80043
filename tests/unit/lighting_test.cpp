// The picker of the light: how it is built, what it shows of the model's light, what lamps and switch send.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class Lighting : public DeskTest {
 protected:
  void SetUp() override {
    model->values["LightIsOn"] = true;
    model->functions["SetLightDirection"] = nullptr;
    setDirection(0, 0, 100);
    createInitAndShow();
  }

  void setDirection(Value x, Value y, Value z, Value status = std::int32_t{0}) {
    model->functions["GetLightDirection"] = [=](std::span<Argument> arguments) {
      *arguments[0].variable = x;
      *arguments[1].variable = y;
      *arguments[2].variable = z;
      return status;
    };
  }
  void setDirection(int x, int y, int z) {
    setDirection(Value(std::int32_t{x}), Value(std::int32_t{y}), Value(std::int32_t{z}));
  }

  frmLighting& popup() { return library.lighting; }
  headless::FormWindow& window() const { return form("frmLighting"); }
  headless::Bar& barLamp(int index) const { return window().bar("barLamp", index); }
  headless::Bar& centre() const { return barLamp(4); }
  headless::Bar& barSwitch() const { return window().bar("barSwitch"); }
  headless::Picture& panel() const { return window().picture("pnlLight"); }

  void open() {
    popup().ShowSelf(1, 1);
    take();
  }
  void openUnlit() {
    model->values["LightIsOn"] = false;
    open();
  }

  std::string pressedKeys() const {
    std::string keys;
    for (const Lamp& lamp : lamps) {
      if (barLamp(lamp.bar).button(lamp.key).state == buttonDown) keys += std::string(lamp.key) + ";";
    }
    return keys;
  }

  Lines closing() const { return {"frmLighting: hide", foregroundLine(), "barWorld(0): Lighting state 0"}; }
};

TEST_F(Lighting, BuildsLampsThenCentreThenSwitch) {
  popup().unload();
  take();
  popup().load();
  const Lines built = take();
  const auto settings = [](const std::string& bar) {
    return Lines{bar + ": enabled", bar + ": folder C:\\Zephra\\System", bar + ": tooltips on",
                 bar + ": file Toolbar.res"};
  };
  Lines expected = {"frmLighting: load"};
  const auto append = [&](const Lines& lines) { expected.insert(expected.end(), lines.begin(), lines.end()); };
  const char* pairs[4][2] = {
      {"LightUL", "LightT"}, {"LightUR", "LightR"}, {"LightB", "LightBR"}, {"LightL", "LightBL"}};
  for (int i = 0; i < 4; ++i) {
    const std::string bar = "barLamp(" + std::to_string(i) + ")";
    append(settings(bar));
    for (const std::string set : {"Enabled", "Disabled"}) {
      const std::string tail = set == "Disabled" ? "D" : "";
      append({bar + ": open " + set, bar + ": add " + pairs[i][0] + tail, bar + ": add " + pairs[i][1] + tail,
              bar + ": lay out"});
    }
  }
  append(settings("barLamp(4)"));
  const char* cubes[][2] = {{"LightUL", "UL"}, {"LightT", "T"},          {"LightUR", "UR"}, {"LightR", "R"},
                            {"LightBR", "BR"}, {"LightB", "B"},          {"LightBL", "BL"}, {"LightL", "L"},
                            {"LightM", "M"},   {"Disabled", "LightNone"}};
  for (const auto& cube : cubes) {
    append(
        {std::string("barLamp(4): open ") + cube[0], std::string("barLamp(4): add ") + cube[1], "barLamp(4): lay out"});
  }
  append(settings("barSwitch"));
  append({"barSwitch: open LightOn", "barSwitch: add SwitchOff", "barSwitch: tooltip Turn the light off",
          "barSwitch: lay out", "barSwitch: open LightOff", "barSwitch: add SwitchOn",
          "barSwitch: tooltip Turn the light on", "barSwitch: lay out", "barSwitch: show LightOn"});
  EXPECT_EQ(built, expected);
  EXPECT_TRUE(library.state.gFormLoaded[lightingIndex]);
}

TEST_F(Lighting, ItsButtonsHaveTheirPictures) {
  const struct {
    int bar;
    const char *key, *spec;
  } rows[] = {{0, "LightUL", "6, lamp1.bmp, 0,0"},
              {0, "LightT", "6, lamp2.bmp, 26, 0"},
              {0, "LightULD", "4, lamp1_disabled.bmp, 0,0"},
              {0, "LightTD", "4, lamp2_disabled.bmp, 26, 0"},
              {1, "LightUR", "6, lamp3.bmp, 0,0"},
              {1, "LightR", "6, lamp6.bmp, 0, 26"},
              {1, "LightURD", "4, lamp3_disabled.bmp, 0,0"},
              {1, "LightRD", "4, lamp6_disabled.bmp, 0, 26"},
              {2, "LightB", "6, lamp8.bmp, 0,0"},
              {2, "LightBR", "6, lamp9.bmp, 26, 0"},
              {2, "LightBD", "4, lamp8_disabled.bmp, 0,0"},
              {2, "LightBRD", "4, lamp9_disabled.bmp, 26, 0"},
              {3, "LightL", "6, lamp4.bmp, 0,0"},
              {3, "LightBL", "6, lamp7.bmp, 0, 26"},
              {3, "LightLD", "4, lamp4_disabled.bmp, 0,0"},
              {3, "LightBLD", "4, lamp7_disabled.bmp, 0, 26"},
              {4, "UL", "6, lightCube1.bmp, 0,0"},
              {4, "T", "6, lightCube2.bmp, 0,0"},
              {4, "UR", "6, lightCube3.bmp, 0,0"},
              {4, "L", "6, lightCube4.bmp, 0,0"},
              {4, "M", "6, lightCube5.bmp, 0,0"},
              {4, "R", "6, lightCube6.bmp, 0,0"},
              {4, "BL", "6, lightCube7.bmp, 0,0"},
              {4, "B", "6, lightCube8.bmp, 0,0"},
              {4, "BR", "6, lightCube9.bmp, 0,0"},
              {4, "LightNone", "4, lightCubeOff.bmp, 0,0"}};
  for (const auto& row : rows) EXPECT_EQ(barLamp(row.bar).button(row.key).bitmapSpec, row.spec) << row.key;
  EXPECT_EQ(barSwitch().button("SwitchOff").bitmapSpec, "5, lampOn.bmp, 0,0");
  EXPECT_EQ(barSwitch().button("SwitchOn").bitmapSpec, "5, lampOff.bmp, 0,0");
  EXPECT_EQ(barLamp(0).button("LightTD").accessibleName, "Light from above");
  EXPECT_EQ(centre().button("M").accessibleName, "Light from front");
}

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

TEST_F(Lighting, ALampReleasesThePreviousOneAndStaysOpen) {
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

TEST_F(Lighting, EveryLampSendsItsDirection) {
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

TEST_F(Lighting, TheCentreIsTheLightFromTheFront) {
  setDirection(-1, -1, 0);
  open();
  centre().hover("UL");  // the cube of the current direction lies there
  EXPECT_EQ(centre().shownLayout, "LightM");
  take();
  centre().press("M");
  EXPECT_THAT(take(), ElementsAre("barLamp(0): LightUL state 0", "model: SetLightDirection 0&, 0&, 100&",
                                  "barLamp(4): show LightM", "barLamp(4): M state 2"));
}

TEST_F(Lighting, OtherKeysDoNothing) {
  open();
  for (const char* key : {"UL", "LightULD", "LightNone", "LightM", ""}) centre().buttonPress(key);
  EXPECT_THAT(take(), IsEmpty());
  EXPECT_EQ(pressedKeys(), "M;");
}

TEST_F(Lighting, LampsOfAnUnlitModelDoNothing) {
  openUnlit();
  barLamp(0).press("LightULD");
  barLamp(0).buttonPress("LightUL");
  barLamp(0).hover("LightULD");
  centre().hover("LightNone");
  panel().movePointer({1}, {1});
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(Lighting, AModelThatRefusesADirectionKeepsTheRememberedOne) {
  open();
  model->failures.emplace("SetLightDirection", Error(error::outOfMemory));
  barLamp(0).press("LightT");
  EXPECT_THAT(take(), ElementsAre("barLamp(4): M state 0", "model: SetLightDirection 0&, -100&, 0&"));
  model->failures.clear();
  panel().movePointer({1}, {1});
  EXPECT_THAT(take(), ElementsAre("barLamp(4): show LightM"));
}

TEST_F(Lighting, TheCubePreviewsTheLampUnderThePointerAndReturns) {
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

TEST_F(Lighting, TheSwitchKeepsTheDirectionAndThePopup) {
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

TEST_F(Lighting, AnyOtherKeyOfTheSwitchTurnsOn) {
  openUnlit();
  barSwitch().buttonPress("switchoff");
  EXPECT_THAT(takeModelCalls(), ElementsAre("model: LightIsOn = True"));
}

TEST_F(Lighting, TheSwitchTurnsBeforeTheModelIsTold) {
  open();
  model->failures.emplace("LightIsOn", Error(5));
  barSwitch().press("SwitchOff");
  take();
  barLamp(0).buttonPress("LightUL");
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(Lighting, OpenedUnlitAndSwitchedOnItShinesFromTheFront) {
  openUnlit();
  barSwitch().press("SwitchOn");
  EXPECT_EQ(pressedKeys(), "M;");
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

TEST_F(Lighting, ArrowKeysMoveOverTheLampsAsTheyStand) {
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

TEST_F(Lighting, TheCentreShowsTheLampInFrontWhileItHasTheKeyboard) {
  setDirection(1, 0, 0);
  open();
  centre().gotFocus();
  EXPECT_EQ(centre().shownLayout, "LightM");
  centre().lostFocus();
  EXPECT_EQ(centre().shownLayout, "LightR");
}

TEST_F(Lighting, AnUnlitPopupLeadsTheKeyboardToTheSwitch) {
  openUnlit();
  EXPECT_TRUE(panel().key(Key::down));
  EXPECT_EQ(barSwitch().focusedKey, "SwitchOn");
  centre().gotFocus();
  EXPECT_EQ(centre().shownLayout, "Disabled");
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

// Hands out a lighting window whose first lamp is already taken, so that it cannot be built.
class TakenLamp : public WindowFactory {
 public:
  explicit TakenLamp(WindowFactory& windows) : windows(windows) {}
  std::shared_ptr<Window> create(const FormLayout& layout) override {
    std::shared_ptr<Window> window = windows.create(layout);
    if (std::string_view(layout.name) == "frmLighting") {
      window->buttonBar("barLamp", 0).openLayout("Enabled");
      window->buttonBar("barLamp", 0).addButton("LightUL", "6, lamp1.bmp, 0,0");
    }
    return window;
  }

 private:
  WindowFactory& windows;
};

TEST(LightingThatCannotBeBuilt, IsReportedOnceAndNeverShown) {
  headless::HeadlessPlatform platform;
  TakenLamp windows(platform.windows);
  Library library({platform.screen, windows, platform.boxes, platform.registry, platform.settings, platform.shell});
  library.state.controls = 1;
  platform.boxes.answers = {PromptAnswer::ok};
  library.lighting.load();
  EXPECT_EQ(platform.transcript.take().back(), "box [Zephra Toolbar] Unable to load Light menu");
  EXPECT_TRUE(library.state.gFormLoaded[lightingIndex]);
  library.lighting.ShowSelf(1, 1);
  EXPECT_THAT(platform.transcript.take(), IsEmpty());
  EXPECT_FALSE(library.state.gFormShown[lightingIndex]);
}

}  // namespace
}  // namespace nerida

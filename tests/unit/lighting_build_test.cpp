// How the picker of the light is built, and what happens when it cannot be.
#include "tests/unit/lighting_desk.h"
#include "tests/unit/spoilt_windows.h"

namespace nerida {
namespace {

using testing::IsEmpty;

class LightingBuild : public LightingTest {};

TEST_F(LightingBuild, BuildsLampsThenCentreThenSwitch) {
  popup().unload();
  take();
  popup().load();
  const Lines built = take();
  const auto settings = [](const std::string& bar) {
    return Lines{bar + ": enabled", bar + ": folder C:\\Zephra\\System", bar + ": tooltips on",
                 bar + ": file Toolbar.res"};
  };
  const auto set = [](const std::string& bar, const char* name, const char* const(&lamps)[2], const char* tail) {
    return Lines{bar + ": open " + name, bar + ": add " + lamps[0] + tail, bar + ": add " + lamps[1] + tail,
                 bar + ": lay out"};
  };
  Lines expected = {"frmLighting: load"};
  const auto append = [&](const Lines& lines) { expected.insert(expected.end(), lines.begin(), lines.end()); };
  const char* pairs[4][2] = {
      {"LightUL", "LightT"}, {"LightUR", "LightR"}, {"LightB", "LightBR"}, {"LightL", "LightBL"}};
  for (int i = 0; i < 4; ++i) {
    const std::string bar = "barLamp(" + std::to_string(i) + ")";
    append(settings(bar));
    append(set(bar, "Enabled", pairs[i], ""));
    append(set(bar, "Disabled", pairs[i], "D"));
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

TEST_F(LightingBuild, ItsButtonsHaveTheirPictures) {
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
  for (const auto& row : rows) {
    if (row.bar != 4) continue;
    EXPECT_EQ(centre().button(row.key).accessibleName, "Light from front") << row.key;
  }
}

class LightingThatCannotBeBuilt : public testing::Test {
 protected:
  void SetUp() override {
    library.state.controls = 1;
    platform.boxes.answers = {PromptAnswer::ok};
  }

  headless::HeadlessPlatform platform;
  SpoiltWindows windows{platform.windows, {"frmLighting", "barLamp", "Enabled", "LightUL", "6, lamp1.bmp, 0,0"}};
  Library library{{platform.screen, windows, platform.boxes, platform.registry, platform.settings, platform.shell,
                   platform.files, platform.search}};
};

TEST_F(LightingThatCannotBeBuilt, IsReportedOnceAndNeverShown) {
  library.lighting.load();
  EXPECT_EQ(platform.transcript.take().back(), "box [Zephra Toolbar] Unable to load Light menu");
  EXPECT_TRUE(library.state.gFormLoaded[lightingIndex]);
  library.lighting.ShowSelf(1, 1);
  EXPECT_THAT(platform.transcript.take(), IsEmpty());
  EXPECT_FALSE(library.state.gFormShown[lightingIndex]);
}

TEST_F(LightingThatCannotBeBuilt, IsNotShownThoughItOnceCouldBe) {
  windows.isSpoilt = false;
  library.lighting.load();
  library.lighting.unload();
  windows.isSpoilt = true;
  library.lighting.load();
  platform.transcript.take();
  library.lighting.ShowSelf(1, 1);
  EXPECT_THAT(platform.transcript.take(), IsEmpty());
}

}  // namespace
}  // namespace nerida

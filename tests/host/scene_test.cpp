#include <gtest/gtest.h>

#include <algorithm>

#include "host/scene/scene.h"
#include "tests/host/glb.h"
#include "tests/host/pictures.h"

namespace nerida {
namespace {

/// A flag-like shape that points to the upper right: every turn of it can be told.
class SceneTest : public testing::Test {
 protected:
  void SetUp() override {
    GlbBuilder file = movingTriangleFile();
    file.description["materials"][0]["doubleSided"] = true;
    scene.load(saved(file.bytes(), "flag.twe"));
    scene.setOrientation(0, 0, 0);
  }

  Drawn drawn() {
    scene.render(picture);
    return drawnPart(picture);
  }

  Scene scene;
  Picture picture{200, 150};
};

TEST(EmptyScene, rendersItsBackground) {
  Scene scene;
  Picture picture(20, 10);
  scene.background.set(makeRgb(9, 8, 7));
  scene.render(picture);
  EXPECT_EQ(colorAt(picture, 19, 9), (Color{9, 8, 7}));
  EXPECT_EQ(scene.modelName(), "");
  EXPECT_FALSE(scene.hasModel());
  EXPECT_EQ(scene.animation.frameCount(), 0);
}

TEST_F(SceneTest, nudgingMovesThePicture) {
  const Drawn home = drawn();
  scene.moveX(1);
  EXPECT_LT(drawn().centerX, home.centerX - 2);
  scene.moveX(-2);
  EXPECT_GT(drawn().centerX, home.centerX + 2);
  scene.moveX(1);
  scene.moveY(1);
  EXPECT_LT(drawn().centerY, home.centerY - 2);
  scene.moveY(-2);
  EXPECT_GT(drawn().centerY, home.centerY + 2);
}

TEST_F(SceneTest, anyNumberOfStepsLeavesTheModelNearby) {
  for (int i = 0; i < 50; ++i) scene.moveX(32'767);
  scene.moveX(-40);
  EXPECT_GT(drawn().count, 0);
}

TEST_F(SceneTest, enlargingAndShrinking) {
  const long home = drawn().count;
  scene.scaleModel(1);
  EXPECT_EQ(scene.modelScale(), 110);
  EXPECT_GT(drawn().count, home);
  scene.scaleModel(-2);
  EXPECT_LT(drawn().count, home);
  EXPECT_EQ(scene.modelScale(), 91);
  scene.scaleModel(-32'768);
  EXPECT_EQ(scene.modelScale(), 5);
  scene.scaleModel(32'767);
  EXPECT_EQ(scene.modelScale(), 2000);
  scene.setModelScale(-5);
  EXPECT_EQ(scene.modelScale(), 5);
  scene.setModelScale(150);
  EXPECT_EQ(scene.modelScale(), 150);
}

TEST_F(SceneTest, tiltingForeshortens) {
  const Drawn flat = drawn();
  for (int i = 0; i < 6; ++i) scene.rotateX(2);
  EXPECT_EQ(scene.orientation(), (Orientation{4'500, 0, 0}));
  EXPECT_LT(drawn().bottom - drawn().top, (flat.bottom - flat.top) * 9 / 10);
  for (int i = 0; i < 6; ++i) scene.rotateX(-2);
  for (int i = 0; i < 6; ++i) scene.rotateY(2);
  EXPECT_EQ(scene.orientation(), (Orientation{0, 4'500, 0}));
  EXPECT_LT(drawn().right - drawn().left, (flat.right - flat.left) * 9 / 10);
}

TEST_F(SceneTest, turnsAreSeenFromTheViewer) {
  scene.rotateZ(24);  // a quarter turn clockwise
  EXPECT_EQ(scene.orientation(), (Orientation{0, 0, 9'000}));
  scene.rotateX(2);
  scene.rotateX(-2);
  EXPECT_EQ(scene.orientation(), (Orientation{0, 0, 9'000}));
}

TEST_F(SceneTest, homeIsWhereItCameFrom) {
  scene.resetHome();
  const Drawn home = drawn();
  const Orientation orientation = scene.orientation();
  scene.rotateX(2);
  scene.moveY(3);
  scene.scaleModel(4);
  scene.resetHome();
  EXPECT_EQ(scene.orientation(), orientation);
  EXPECT_EQ(drawn().count, home.count);
  EXPECT_EQ(drawn().centerX, home.centerX);
}

TEST_F(SceneTest, stylesAreChosenByName) {
  const auto names = Scene::lookStyleNames();
  EXPECT_EQ(std::count(names.begin(), names.end(), "Basic Draw"), 0);
  for (const char* name : {"Shaded", "Ink Outline", "Wireframe"}) {
    EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
  }
  EXPECT_EQ(scene.lookStyleName(), names.front());
  for (const std::string& name : names) {
    EXPECT_TRUE(scene.setLookStyle(name));
    EXPECT_EQ(scene.lookStyleName(), name);
  }
  EXPECT_TRUE(scene.setLookStyle("Basic Draw"));
  EXPECT_EQ(scene.lookStyleName(), "Basic Draw");
}

TEST_F(SceneTest, theEmptyNameIsTheCustomStyle) {
  scene.setLookStyle("Blueprint");
  const PackedRgb background = scene.backgroundColor();
  EXPECT_TRUE(scene.setLookStyle(""));
  EXPECT_EQ(scene.lookStyleName(), "none");
  EXPECT_EQ(scene.backgroundColor(), background);
  EXPECT_FALSE(scene.setLookStyle("none"));
  EXPECT_EQ(scene.lookStyleName(), "none");
  EXPECT_FALSE(scene.setLookStyle("shaded"));
  EXPECT_TRUE(scene.setLookStyle("Shaded"));
  EXPECT_EQ(scene.lookStyleName(), "Shaded");
}

TEST_F(SceneTest, colorsAreTheStylesUntilChosen) {
  scene.setLookStyle("Blueprint");
  const LookStyle& blueprint = *findLookStyle("Blueprint");
  EXPECT_EQ(scene.surfaceColor(), blueprint.surface);
  EXPECT_EQ(scene.lineColor(), blueprint.line);
  EXPECT_EQ(scene.backgroundColor(), blueprint.background);
  EXPECT_TRUE(scene.surface.isDefault() && scene.line.isDefault() && scene.background.isDefault());
  scene.line.set(makeRgb(1, 2, 3));
  EXPECT_FALSE(scene.line.isDefault());
  EXPECT_TRUE(scene.surface.isDefault());
  EXPECT_EQ(scene.lineColor(), makeRgb(1, 2, 3));
  scene.setLookStyle("Ink Outline");
  EXPECT_EQ(scene.lineColor(), makeRgb(1, 2, 3));
  scene.line.restoreDefault();
  EXPECT_EQ(scene.lineColor(), findLookStyle("Ink Outline")->line);
  EXPECT_TRUE(scene.line.isDefault());
}

TEST_F(SceneTest, chosenColorsAreSeen) {
  scene.setLookStyle("Ink Outline");
  scene.render(picture);
  const Picture before = picture;
  scene.surface.set(makeRgb(250, 200, 20));
  scene.render(picture);
  EXPECT_GT(differences(before, picture, 20), 500);
  scene.surface.restoreDefault();
  scene.render(picture);
  EXPECT_EQ(differences(before, picture, 0), 0);
}

TEST_F(SceneTest, lineThicknessIsKeptWithinLimits) {
  EXPECT_EQ(scene.lineThicknessScale(), 100);
  for (const auto& [set, read] : {std::pair{75, 75}, {50, 50}, {0, 50}, {-9, 50}, {200, 200}, {9'999, 300}}) {
    scene.setLineThicknessScale(set);
    EXPECT_EQ(scene.lineThicknessScale(), read);
  }
}

TEST_F(SceneTest, theLightIsReadBackAsItWasSet) {
  scene.setLightDirection({0, -100, 0});
  EXPECT_EQ(scene.lightDirection(), (LightDirection{0, -100, 0}));
  scene.setLightDirection({-500, 7, 2'000'000'000});
  EXPECT_EQ(scene.lightDirection(), (LightDirection{-100, 7, 100}));
  scene.setLightDirection({0, 0, 100});
  const double lit = drawn().brightness;
  scene.lightIsOn = false;
  EXPECT_LT(drawn().brightness, lit - 10);
}

TEST_F(SceneTest, framesMoveTheModel) {
  ASSERT_EQ(scene.animation.frameCount(), 25);
  const Drawn first = drawn();
  scene.animation.setCurrentFrame(24);
  EXPECT_GT(drawn().centerX, first.centerX + 10);
}

TEST_F(SceneTest, namesComeFromTheFileUnlessGiven) {
  EXPECT_EQ(scene.modelName(), "flag");
  scene.setModelName("Garden Gate");
  scene.load(saved(triangleFile().bytes(), "other.twe"));
  EXPECT_EQ(scene.modelName(), "Garden Gate");
  EXPECT_EQ(scene.modelFile().filename(), "other.twe");
}

TEST_F(SceneTest, loadingBringsHomeAndStops) {
  scene.setLookStyle("Ink Outline");
  scene.surface.set(makeRgb(1, 1, 1));
  scene.animation.setPlaying(true);
  scene.moveX(5);
  scene.scaleModel(3);
  scene.load(saved(triangleFile().bytes(), "other.twe"));
  EXPECT_FALSE(scene.animation.playing());
  EXPECT_EQ(scene.animation.frameCount(), 0);
  EXPECT_EQ(scene.modelScale(), 100);
  EXPECT_EQ(scene.lookStyleName(), "Ink Outline");
  EXPECT_EQ(scene.surfaceColor(), makeRgb(1, 1, 1));
}

TEST_F(SceneTest, aBrokenFileLeavesEverythingAsItWas) {
  scene.moveX(2);
  scene.animation.setCurrentFrame(7);
  scene.render(picture);
  const Picture before = picture;
  EXPECT_THROW(scene.load(saved({'n', 'o'}, "broken.twe")), ModelError);
  EXPECT_THROW(scene.load("missing.twe"), ModelError);
  EXPECT_EQ(scene.modelName(), "flag");
  EXPECT_EQ(scene.modelFile().filename(), "flag.twe");
  EXPECT_EQ(scene.animation.currentFrame(), 7);
  scene.render(picture);
  EXPECT_EQ(differences(before, picture, 0), 0);
}

}  // namespace
}  // namespace nerida

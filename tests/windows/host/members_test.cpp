#include <set>

#include "tests/windows/host/object_test.h"

namespace nerida::host {
namespace {

class Members : public ObjectTest {};

TEST_F(Members, modelHasNoNameBeforeItIsLoaded) {
  EXPECT_EQ(let(L"ModelName", Value::text(L"Kettle")).status, S_OK);
  EXPECT_EQ(textOf(L"ModelName"), L"");
  ASSERT_EQ(load(movingModel()).status, S_OK);
  EXPECT_EQ(textOf(L"ModelName"), L"Kettle");
}

TEST_F(Members, modelWithoutANameHasItsFiles) {
  ASSERT_EQ(load(movingModel()).status, S_OK);
  EXPECT_EQ(textOf(L"ModelName"), L"flag");
  EXPECT_EQ(site.models, 1);
  EXPECT_EQ(site.displays, 1);
}

TEST_F(Members, brokenFileLeavesTheOldModelAndItsName) {
  ASSERT_EQ(load(movingModel()).status, S_OK);
  let(L"ModelName", Value::text(L"Ruin"));
  const Answer answer = load(brokenModel());
  EXPECT_EQ(answer.status, DISP_E_EXCEPTION);
  EXPECT_EQ(answer.errorNumber, 380);
  EXPECT_FALSE(answer.description.empty());
  EXPECT_EQ(textOf(L"ModelName"), L"flag");
  EXPECT_EQ(numberOf(L"AnimationFrameCount"), 25);
}

TEST_F(Members, missingFileIsFileNotFound) {
  const Answer answer = load(L"C:\\no\\such\\model.twe");
  EXPECT_EQ(answer.status, DISP_E_EXCEPTION);
  EXPECT_EQ(answer.errorNumber, 53);
}

TEST_F(Members, modelScaleIsSet) {
  EXPECT_EQ(let(L"ModelScale", Value::i4(250)).status, S_OK);
  EXPECT_EQ(object.scene.modelScale(), 250);
  EXPECT_EQ(let(L"ModelScale", Value::i4(0)).errorNumber, 380);
  EXPECT_EQ(object.scene.modelScale(), 250);
}

TEST_F(Members, refreshDisplayRedraws) {
  EXPECT_EQ(call(L"RefreshDisplay").status, S_OK);
  EXPECT_EQ(site.displays, 1);
}

TEST_F(Members, interfaceFlagsTellWhatTheStyleUses) {
  const auto flagsIn = [&](const wchar_t* style) {
    EXPECT_EQ(let(L"LookStyle", Value::text(style)).status, S_OK);
    return numberOf(L"InterfaceFlags");
  };
  EXPECT_EQ(flagsIn(L"Shaded"), 1);
  EXPECT_EQ(flagsIn(L"Wireframe"), 2 + 4 + 16);
  EXPECT_EQ(flagsIn(L"Ink Outline"), 1 + 2 + 4 + 16);
  EXPECT_EQ(flagsIn(L""), 1 + 2 + 4 + 16);
}

TEST_F(Members, showingIsMirrored) {
  for (const wchar_t* name : {L"IsToolbarShowing", L"IsCatalogShowing"}) {
    EXPECT_FALSE(flagOf(name));
    EXPECT_EQ(let(name, Value::boolean(true)).status, S_OK);
    EXPECT_TRUE(flagOf(name));
    EXPECT_EQ(let(name, Value::boolean(false)).status, S_OK);
    EXPECT_FALSE(flagOf(name));
  }
}

TEST_F(Members, documentHearsThatTheCatalogHasClosed) {
  EXPECT_EQ(let(L"DoneShowingModelCatalog", Value::boolean(false)).status, S_OK);
  EXPECT_EQ(site.catalogs, 0);
  EXPECT_EQ(let(L"DoneShowingModelCatalog", Value::boolean(true)).status, S_OK);
  EXPECT_EQ(site.catalogs, 1);
}

std::vector<std::uint32_t> pictureOf(Scene& scene) {
  Picture drawn(64, 48);
  scene.render(drawn);
  return drawn.pixels;
}

// Every step has a picture of its own: a mixed-up axis or direction shows.
TEST_F(Members, stepsMoveTheModelTheirOwnWay) {
  struct Row {
    const wchar_t* name;
    void (Scene::*move)(int);
  };
  constexpr Row rows[] = {{L"MoveX", &Scene::moveX},           {L"MoveY", &Scene::moveY},
                          {L"ScaleModel", &Scene::scaleModel}, {L"RotateX", &Scene::rotateX},
                          {L"RotateY", &Scene::rotateY},       {L"RotateZ", &Scene::rotateZ}};
  const auto file = movingModel();
  ASSERT_EQ(load(file).status, S_OK);
  const auto home = pictureOf(object.scene);
  std::set<std::vector<std::uint32_t>> pictures = {home};
  for (const Row& row : rows) {
    for (const int step : {-4, 4}) {
      Scene expected;
      expected.load(file);
      (expected.*row.move)(step);
      EXPECT_EQ(call(row.name, Value::i2(step)).status, S_OK);
      EXPECT_EQ(pictureOf(object.scene), pictureOf(expected)) << utf8(row.name) << step;
      EXPECT_TRUE(pictures.insert(pictureOf(expected)).second) << utf8(row.name) << step;
      EXPECT_EQ(call(L"ResetHome").status, S_OK);
      EXPECT_EQ(pictureOf(object.scene), home) << utf8(row.name) << step;
    }
  }
}

TEST_F(Members, orientationIsTakenByValueAndByReference) {
  LONG x = 0, y = 4'500, z = 0;
  EXPECT_EQ(call(L"SetOrientation", Value::refI4(x), Value::refI4(y), Value::refI4(z)).status, S_OK);
  EXPECT_EQ(object.scene.orientation().y, 4'500);
  EXPECT_EQ(call(L"SetOrientation", Value::i2(0), Value::i2(9'000), Value::i2(0)).status, S_OK);
  EXPECT_EQ(object.scene.orientation().y, 9'000);
}

TEST_F(Members, styleListFillsTheFirstVariable) {
  Value first, second, third;
  ASSERT_EQ(
      call(L"GetLookStyleList", Value::refVariant(first), Value::refVariant(second), Value::refVariant(third)).status,
      S_OK);
  ASSERT_EQ(first.vt, VT_ARRAY | VT_BSTR);
  const auto names = Scene::lookStyleNames();
  LONG last = -1;
  ASSERT_EQ(SafeArrayGetUBound(first.parray, 1, &last), S_OK);
  ASSERT_EQ(static_cast<std::size_t>(last) + 1, names.size());
  for (LONG i = 0; i <= last; ++i) {
    BSTR name = nullptr;
    ASSERT_EQ(SafeArrayGetElement(first.parray, &i, &name), S_OK);
    EXPECT_EQ(utf8(viewOf(name)), names[static_cast<std::size_t>(i)]);
    SysFreeString(name);
  }
  EXPECT_EQ(second.vt, VT_EMPTY);
  EXPECT_EQ(third.vt, VT_EMPTY);
}

TEST_F(Members, styleListNeedsVariables) {
  const Value value = Value::i4(0);
  EXPECT_EQ(call(L"GetLookStyleList", value, value, value).status, DISP_E_TYPEMISMATCH);
}

TEST_F(Members, stylesAreAppliedByName) {
  for (const std::string& name : Scene::lookStyleNames()) {
    EXPECT_EQ(let(L"LookStyle", Value::text(wide(name).c_str())).status, S_OK);
    EXPECT_EQ(textOf(L"LookStyleName"), wide(name));
  }
  EXPECT_EQ(let(L"LookStyle", Value::text(L"Basic Draw")).status, S_OK);
  EXPECT_EQ(textOf(L"LookStyleName"), L"Basic Draw");
  EXPECT_EQ(let(L"LookStyle", Value::text(L"")).status, S_OK);
  EXPECT_EQ(textOf(L"LookStyleName"), L"none");
  EXPECT_EQ(let(L"LookStyle", Value::text(L"shaded")).errorNumber, 380);
  EXPECT_EQ(textOf(L"LookStyleName"), L"none");
}

struct ColorMembers {
  const wchar_t *color, *isDefault, *restore;
};

class Colors : public ObjectTest, public testing::WithParamInterface<ColorMembers> {};

TEST_P(Colors, areChosenAndGivenBack) {
  const auto [color, isDefault, restore] = GetParam();
  const LONG own = numberOf(color);
  EXPECT_TRUE(flagOf(isDefault));
  EXPECT_EQ(let(color, Value::i4(0x3366CC)).status, S_OK);
  EXPECT_EQ(numberOf(color), 0x3366CC);
  EXPECT_FALSE(flagOf(isDefault));
  EXPECT_EQ(call(restore).status, S_OK);
  EXPECT_EQ(numberOf(color), own);
  EXPECT_TRUE(flagOf(isDefault));
  EXPECT_EQ(site.displays, 2);
}

TEST_P(Colors, beyondWhiteOrBelowBlackAreRefused) {
  for (const int wrong : {-1, 0x1000000}) {
    EXPECT_EQ(let(GetParam().color, Value::i4(wrong)).errorNumber, 380);
    EXPECT_TRUE(flagOf(GetParam().isDefault));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Members, Colors,
    testing::Values(ColorMembers{L"SurfaceColor", L"IsSurfaceColorDefault", L"RestoreDefaultSurfaceColor"},
                    ColorMembers{L"LineColor", L"IsLineColorDefault", L"RestoreDefaultLineColor"},
                    ColorMembers{L"BackgroundColor", L"IsBackgroundDefault", L"RestoreDefaultBackgroundColor"}));

TEST_F(Members, lineThicknessIsSixteenBitsWide) {
  for (const int percent : {50, 75, 100, 150, 200}) {
    EXPECT_EQ(let(L"LineThicknessScale", Value::i2(percent)).status, S_OK);
    const Answer answer = get(L"LineThicknessScale");
    EXPECT_EQ(answer.result.vt, VT_I2);
    EXPECT_EQ(answer.result.iVal, percent);
  }
  EXPECT_EQ(let(L"LineThicknessScale", Value::i2(0)).errorNumber, 380);
}

TEST_F(Members, lightIsSwitched) {
  EXPECT_TRUE(flagOf(L"LightIsOn"));
  EXPECT_EQ(let(L"LightIsOn", Value::boolean(false)).status, S_OK);
  EXPECT_FALSE(flagOf(L"LightIsOn"));
}

TEST_F(Members, lightDirectionComesBackInEveryKindOfReference) {
  ASSERT_EQ(call(L"SetLightDirection", Value::i4(100), Value::i4(-100), Value::i4(0)).status, S_OK);
  LONG x = 7;
  SHORT y = 7;
  Value z;
  const Answer answer = call(L"GetLightDirection", Value::refI4(x), Value::refI2(y), Value::refVariant(z));
  EXPECT_EQ(answer.status, S_OK);
  EXPECT_EQ(answer.result.lVal, 0);
  EXPECT_EQ(x, 100);
  EXPECT_EQ(y, -100);
  EXPECT_EQ(z.lVal, 0);
}

TEST_F(Members, lightDirectionHasLimits) {
  const Value zero = Value::i4(0), beyond = Value::i4(101);
  EXPECT_EQ(call(L"SetLightDirection", zero, zero, beyond).errorNumber, 380);
  EXPECT_EQ(call(L"GetLightDirection", zero, zero, zero).status, DISP_E_TYPEMISMATCH);
}

TEST_F(Members, framesStayWithinTheirBounds) {
  ASSERT_EQ(load(movingModel()).status, S_OK);
  ASSERT_EQ(numberOf(L"AnimationFrameCount"), 25);
  EXPECT_EQ(call(L"AnimationDecrementFrame").status, S_OK);
  EXPECT_EQ(numberOf(L"AnimationCurrentFrame"), 0);
  EXPECT_EQ(call(L"AnimationIncrementFrame").status, S_OK);
  EXPECT_EQ(numberOf(L"AnimationCurrentFrame"), 1);
  EXPECT_EQ(let(L"AnimationCurrentFrame", Value::i2(24)).status, S_OK);
  EXPECT_EQ(call(L"AnimationIncrementFrame").status, S_OK);
  EXPECT_EQ(numberOf(L"AnimationCurrentFrame"), 24);
  EXPECT_EQ(let(L"AnimationCurrentFrame", Value::i2(1'000)).status, S_OK);
  EXPECT_EQ(numberOf(L"AnimationCurrentFrame"), 24);
}

TEST_F(Members, timerRunsWhileTheAnimationPlays) {
  ASSERT_EQ(load(movingModel()).status, S_OK);
  EXPECT_EQ(let(L"AnimationState", Value::boolean(true)).status, S_OK);
  EXPECT_TRUE(flagOf(L"AnimationState"));
  EXPECT_TRUE(object.scene.animation.advancing());
  EXPECT_EQ(call(L"StopTimer").status, S_OK);
  EXPECT_FALSE(object.scene.animation.advancing());
  EXPECT_TRUE(flagOf(L"AnimationState"));
  EXPECT_EQ(call(L"StartTimer").status, S_OK);
  EXPECT_TRUE(object.scene.animation.advancing());
  EXPECT_EQ(let(L"AnimationState", Value::boolean(false)).status, S_OK);
  EXPECT_FALSE(object.scene.animation.advancing());
  EXPECT_EQ(site.animations, 5);
}

TEST_F(Members, animationRepeatsUnlessAskedNotTo) {
  EXPECT_TRUE(flagOf(L"AnimationLoopState"));
  EXPECT_EQ(let(L"AnimationLoopState", Value::boolean(false)).status, S_OK);
  EXPECT_FALSE(flagOf(L"AnimationLoopState"));
}

}  // namespace
}  // namespace nerida::host

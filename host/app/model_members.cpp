#include "host/app/model_members.h"

#include <climits>

namespace nerida::host {
namespace {

using Model = ModelObject;

int bounded(int value, int low, int high, const char* what) {
  if (value >= low && value <= high) return value;
  throw MemberError{invalidPropertyValue, std::string(what) + " must be between " + std::to_string(low) + " and " +
                                              std::to_string(high) + ", not " + std::to_string(value) + "."};
}

PackedRgb colorOf(const Arguments& arguments) {
  constexpr int whiteColor = 0xFFFFFF;
  return static_cast<PackedRgb>(bounded(arguments.number(0), 0, whiteColor, "A colour"));
}

// A property that is read by `Read` alone.
template <auto Read>
void get(const Model& model, VARIANT* result) {
  answer(result, Read(model));
}

// A call that moves the model by a number of steps.
template <void (Scene::*Move)(int)>
void step(Model& model, const Arguments& arguments, VARIANT*) {
  (model.scene.*Move)(arguments.number(0));
  model.changed();
}

template <ColorChoice Scene::*Color>
void letColor(Model& model, const Arguments& arguments) {
  (model.scene.*Color).set(colorOf(arguments));
  model.changed();
}

template <ColorChoice Scene::*Color>
void getIsDefault(const Model& model, VARIANT* result) {
  answer(result, (model.scene.*Color).isDefault());
}

template <ColorChoice Scene::*Color>
void restoreDefault(Model& model, const Arguments&, VARIANT*) {
  (model.scene.*Color).restoreDefault();
  model.changed();
}

template <void (Playback::*Action)()>
void animate(Model& model, const Arguments&, VARIANT*) {
  (model.scene.animation.*Action)();
  model.animated();
}

void letModelName(Model& model, const Arguments& arguments) { model.setName(utf8(arguments.text(0))); }

void letFile(Model& model, const Arguments& arguments) {
  const std::filesystem::path file(arguments.text(0));
  try {
    model.load(file);
  } catch (const ModelError& error) {
    throw unusableFile(file, error.what());
  }
}

void letScale(Model& model, const Arguments& arguments) {
  model.scene.setModelScale(bounded(arguments.number(0), 1, INT_MAX, "The scale"));
  model.changed();
}

void refreshDisplay(Model& model, const Arguments&, VARIANT*) { model.changed(); }

void letToolbarShowing(Model& model, const Arguments& arguments) { model.toolbarShowing = arguments.boolean(0); }
void letCatalogShowing(Model& model, const Arguments& arguments) { model.catalogShowing = arguments.boolean(0); }

void letCatalogDone(Model& model, const Arguments& arguments) {
  if (arguments.boolean(0)) model.catalogClosed();
}

void resetHome(Model& model, const Arguments&, VARIANT*) {
  model.scene.resetHome();
  model.changed();
}

void setOrientation(Model& model, const Arguments& angles, VARIANT*) {
  model.scene.setOrientation(angles.number(0), angles.number(1), angles.number(2));
  model.changed();
}

// The first variable receives the names; the others are left as they are.
void getLookStyleList(Model&, const Arguments& lists, VARIANT*) { lists.store(0, Scene::lookStyleNames()); }

void letLookStyle(Model& model, const Arguments& arguments) {
  const std::string style = utf8(arguments.text(0));
  if (!model.scene.setLookStyle(style)) {
    throw MemberError{invalidPropertyValue, "There is no style called \"" + style + "\"."};
  }
  model.changed();
}

void letThickness(Model& model, const Arguments& arguments) {
  model.scene.setLineThicknessScale(bounded(arguments.number(0), 1, SHRT_MAX, "The line thickness"));
  model.changed();
}

void letLight(Model& model, const Arguments& arguments) {
  model.scene.lightIsOn = arguments.boolean(0);
  model.changed();
}

void setLightDirection(Model& model, const Arguments& parts, VARIANT*) {
  constexpr int most = 100;
  const auto part = [&](std::size_t index) { return bounded(parts.number(index), -most, most, "A direction's part"); };
  model.scene.setLightDirection({part(0), part(1), part(2)});
  model.changed();
}

void getLightDirection(Model& model, const Arguments& parts, VARIANT* result) {
  const LightDirection light = model.scene.lightDirection();
  parts.store(0, light.x);
  parts.store(1, light.y);
  parts.store(2, light.z);
  constexpr int success = 0;
  answer(result, success);
}

// A frame beyond the ends means the end: whoever asks reads back where the animation stands.
void letFrame(Model& model, const Arguments& arguments) {
  model.scene.animation.setCurrentFrame(arguments.number(0));
  model.animated();
}

void letPlaying(Model& model, const Arguments& arguments) {
  model.scene.animation.setPlaying(arguments.boolean(0));
  model.animated();
}

void letLooping(Model& model, const Arguments& arguments) { model.scene.animation.setLooping(arguments.boolean(0)); }

int signedColor(PackedRgb color) { return static_cast<int>(color); }

constexpr auto nameOf = [](const Model& m) { return m.name(); };
constexpr auto flagsOf = [](const Model& m) { return m.interfaceFlags(); };
constexpr auto toolbarShows = [](const Model& m) { return m.toolbarShowing; };
constexpr auto catalogShows = [](const Model& m) { return m.catalogShowing; };
constexpr auto styleOf = [](const Model& m) { return m.scene.lookStyleName(); };
constexpr auto surfaceOf = [](const Model& m) { return signedColor(m.scene.surfaceColor()); };
constexpr auto lineOf = [](const Model& m) { return signedColor(m.scene.lineColor()); };
constexpr auto backgroundOf = [](const Model& m) { return signedColor(m.scene.backgroundColor()); };
constexpr auto lightOf = [](const Model& m) { return m.scene.lightIsOn; };
constexpr auto framesOf = [](const Model& m) { return m.scene.animation.frameCount(); };
constexpr auto frameOf = [](const Model& m) { return m.scene.animation.currentFrame(); };
constexpr auto playingOf = [](const Model& m) { return m.scene.animation.playing(); };
constexpr auto loopingOf = [](const Model& m) { return m.scene.animation.looping(); };

// 16 bits wide towards the caller.
void getThickness(const Model& model, VARIANT* result) {
  if (result == nullptr) return;
  result->vt = VT_I2;
  result->iVal = static_cast<SHORT>(model.scene.lineThicknessScale());
}

constexpr ModelMember memberTable[] = {
    {.name = L"ModelName", .get = get<nameOf>, .let = letModelName},
    {.name = L"TarnwellXFile", .let = letFile},
    {.name = L"ModelScale", .let = letScale},
    {.name = L"RefreshDisplay", .call = refreshDisplay},
    {.name = L"InterfaceFlags", .get = get<flagsOf>},

    {.name = L"IsToolbarShowing", .get = get<toolbarShows>, .let = letToolbarShowing},
    {.name = L"IsCatalogShowing", .get = get<catalogShows>, .let = letCatalogShowing},
    {.name = L"DoneShowingModelCatalog", .let = letCatalogDone},

    {.name = L"MoveX", .call = step<&Scene::moveX>, .argumentCount = 1},
    {.name = L"MoveY", .call = step<&Scene::moveY>, .argumentCount = 1},
    {.name = L"RotateX", .call = step<&Scene::rotateX>, .argumentCount = 1},
    {.name = L"RotateY", .call = step<&Scene::rotateY>, .argumentCount = 1},
    {.name = L"RotateZ", .call = step<&Scene::rotateZ>, .argumentCount = 1},
    {.name = L"ScaleModel", .call = step<&Scene::scaleModel>, .argumentCount = 1},
    {.name = L"ResetHome", .call = resetHome},
    {.name = L"SetOrientation", .call = setOrientation, .argumentCount = 3},

    {.name = L"GetLookStyleList", .call = getLookStyleList, .argumentCount = 3},
    {.name = L"LookStyleName", .get = get<styleOf>},
    {.name = L"LookStyle", .let = letLookStyle},
    {.name = L"SurfaceColor", .get = get<surfaceOf>, .let = letColor<&Scene::surface>},
    {.name = L"LineColor", .get = get<lineOf>, .let = letColor<&Scene::line>},
    {.name = L"BackgroundColor", .get = get<backgroundOf>, .let = letColor<&Scene::background>},
    {.name = L"IsSurfaceColorDefault", .get = getIsDefault<&Scene::surface>},
    {.name = L"IsLineColorDefault", .get = getIsDefault<&Scene::line>},
    {.name = L"IsBackgroundDefault", .get = getIsDefault<&Scene::background>},
    {.name = L"RestoreDefaultSurfaceColor", .call = restoreDefault<&Scene::surface>},
    {.name = L"RestoreDefaultLineColor", .call = restoreDefault<&Scene::line>},
    {.name = L"RestoreDefaultBackgroundColor", .call = restoreDefault<&Scene::background>},
    {.name = L"LineThicknessScale", .get = getThickness, .let = letThickness},

    {.name = L"LightIsOn", .get = get<lightOf>, .let = letLight},
    {.name = L"SetLightDirection", .call = setLightDirection, .argumentCount = 3},
    {.name = L"GetLightDirection", .call = getLightDirection, .argumentCount = 3},

    {.name = L"AnimationFrameCount", .get = get<framesOf>},
    {.name = L"AnimationCurrentFrame", .get = get<frameOf>, .let = letFrame},
    {.name = L"AnimationIncrementFrame", .call = animate<&Playback::increment>},
    {.name = L"AnimationDecrementFrame", .call = animate<&Playback::decrement>},
    {.name = L"AnimationState", .get = get<playingOf>, .let = letPlaying},
    {.name = L"AnimationLoopState", .get = get<loopingOf>, .let = letLooping},
    {.name = L"StopTimer", .call = animate<&Playback::stopTimer>},
    {.name = L"StartTimer", .call = animate<&Playback::startTimer>},
};

}  // namespace

std::span<const ModelMember> modelMembers() { return memberTable; }

}  // namespace nerida::host

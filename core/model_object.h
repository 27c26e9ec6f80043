#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "core/state.h"

namespace nerida {

// Where the light comes from: x to the right, y downwards, z towards the viewer; -100 to 100 each (32-bit).
struct LightDirection {
  std::int32_t x = 0;
  std::int32_t y = 0;
  std::int32_t z = 0;
};

// The embedded object's members, typed. Every use looks the member up by name on the object that the state holds at
// that moment and passes the arguments in the exact form stated here; numbers that are read are taken as the object
// gives them and converted. Booleans cross as 16-bit, true = -1; colours as red + 256 green + 65536 blue.
// Errors: 91 without an object, 438 when it lacks the member, else what the object raised, or 6 or 13 when a result
// cannot be converted. The object is held during each call: it may tear the library down from inside.
class ModelObject {
 public:
  explicit ModelObject(const State& state) : state(state) {}

  bool exists() const { return state.gModelObject != nullptr; }

  std::string ModelName() { return toText(get("ModelName")); }
  void setModelName(const std::string& name) { let("ModelName", name); }
  void setTarnwellXFile(const std::string& path) { let("TarnwellXFile", path); }  // of the model to load
  void setModelScale(std::int32_t scale) { let("ModelScale", scale); }            // as the preview reports it
  void RefreshDisplay() { call("RefreshDisplay"); }
  std::int32_t InterfaceFlags() { return toInt32(get("InterfaceFlags")); }

  bool IsToolbarShowing() { return toBoolean(get("IsToolbarShowing")); }
  void setIsToolbarShowing(bool showing) { let("IsToolbarShowing", showing); }
  bool IsCatalogShowing() { return toBoolean(get("IsCatalogShowing")); }
  void setIsCatalogShowing(bool showing) { let("IsCatalogShowing", showing); }
  void setDoneShowingModelCatalog() { let("DoneShowingModelCatalog", true); }

  // Steps are unit counts (16-bit); the object turns them into distances, angles and factors.
  void MoveX(std::int16_t step) { call("MoveX", {step}); }
  void MoveY(std::int16_t step) { call("MoveY", {step}); }
  void RotateX(std::int16_t step) { call("RotateX", {step}); }
  void RotateY(std::int16_t step) { call("RotateY", {step}); }
  void RotateZ(std::int16_t step) { call("RotateZ", {step}); }
  void ScaleModel(std::int16_t step) { call("ScaleModel", {step}); }
  void ResetHome() { call("ResetHome"); }
  // Hundredths of a degree (16-bit).
  void SetOrientation(std::int16_t x, std::int16_t y, std::int16_t z) { call("SetOrientation", {x, y, z}); }
  // The angles of a model in the preview, as references to 32-bit numbers.
  void SetOrientation(const std::array<std::int32_t, 3>& angles);

  // The names of the rendering styles in the object's order. Three variables are passed by reference; the first that
  // comes back with an array of texts is the list. An object that cannot fill variables (some script languages) may
  // return the array instead. Error 13 when there is none.
  std::vector<std::string> GetLookStyleList();
  std::string LookStyleName() { return toText(get("LookStyleName")); }
  void setLookStyle(const std::string& name) { let("LookStyle", name); }

  // Explicit colours, or the style's own ones.
  bool IsBackgroundDefault() { return toBoolean(get("IsBackgroundDefault")); }
  bool IsLineColorDefault() { return toBoolean(get("IsLineColorDefault")); }
  bool IsSurfaceColorDefault() { return toBoolean(get("IsSurfaceColorDefault")); }
  std::int32_t BackgroundColor() { return toInt32(get("BackgroundColor")); }
  std::int32_t LineColor() { return toInt32(get("LineColor")); }
  std::int32_t SurfaceColor() { return toInt32(get("SurfaceColor")); }
  void setBackgroundColor(std::int32_t color) { let("BackgroundColor", color); }
  void setLineColor(std::int32_t color) { let("LineColor", color); }
  void setSurfaceColor(std::int32_t color) { let("SurfaceColor", color); }
  void RestoreDefaultBackgroundColor() { call("RestoreDefaultBackgroundColor"); }
  void RestoreDefaultLineColor() { call("RestoreDefaultLineColor"); }
  void RestoreDefaultSurfaceColor() { call("RestoreDefaultSurfaceColor"); }

  // Percent of the normal thickness.
  std::int32_t LineThicknessScale() { return toInt32(get("LineThicknessScale")); }
  void setLineThicknessScale(std::int16_t percent) { let("LineThicknessScale", percent); }

  bool LightIsOn() { return toBoolean(get("LightIsOn")); }
  void setLightIsOn(bool on) { let("LightIsOn", on); }
  void SetLightDirection(const LightDirection& direction);
  // Nothing when the object answers with a status other than 0, or fails.
  std::optional<LightDirection> GetLightDirection();

  // Frames count from 0 and are 16-bit when written.
  std::int32_t AnimationFrameCount() { return toInt32(get("AnimationFrameCount")); }
  std::int32_t AnimationCurrentFrame() { return toInt32(get("AnimationCurrentFrame")); }
  void setAnimationCurrentFrame(std::int16_t frame) { let("AnimationCurrentFrame", frame); }
  void AnimationIncrementFrame() { call("AnimationIncrementFrame"); }
  void AnimationDecrementFrame() { call("AnimationDecrementFrame"); }
  bool AnimationLoopState() { return toBoolean(get("AnimationLoopState")); }
  void setAnimationLoopState(bool repeats) { let("AnimationLoopState", repeats); }
  bool AnimationState() { return toBoolean(get("AnimationState")); }
  void setAnimationState(bool playing) { let("AnimationState", playing); }
  void StopTimer() { call("StopTimer"); }
  void StartTimer() { call("StartTimer"); }

 private:
  ObjectRef object() const;
  Value get(const char* member) { return object()->get(member); }
  void let(const char* member, const Value& value) { object()->let(member, value); }
  void call(const char* member, std::initializer_list<std::int16_t> steps = {});

  const State& state;
};

}  // namespace nerida

#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "core/state.h"

namespace nerida {

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

  // The names of the rendering styles in the object's order. Three variables are passed by reference; the first that
  // comes back with an array of texts is the list. An object that cannot fill variables (some script languages) may
  // return the array instead. Error 13 when there is none.
  std::vector<std::string> GetLookStyleList();
  std::string LookStyleName() { return toText(get("LookStyleName")); }
  void setLookStyle(const std::string& name) { let("LookStyle", name); }

  std::int32_t AnimationFrameCount() { return toInt32(get("AnimationFrameCount")); }
  std::int32_t AnimationCurrentFrame() { return toInt32(get("AnimationCurrentFrame")); }
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

#include "host/app/call_words.h"

namespace nerida::host {
namespace {

// Above zero or true, and below zero or false; the same when the value makes no difference. A "%" stands for the value.
struct Phrase {
  std::wstring_view member;
  const char* positive;
  const char* negative;
};

constexpr Phrase phrases[] = {
    {L"ModelName", "Named the model %", nullptr},
    {L"TarnwellXFile", "Loaded the model file", nullptr},
    {L"ModelScale", "Scaled to % per cent", nullptr},
    {L"RefreshDisplay", "Redrawn", nullptr},
    {L"IsToolbarShowing", "The toolbar is showing", "The toolbar is hidden"},
    {L"IsCatalogShowing", "The catalog is showing", "The catalog is hidden"},
    {L"DoneShowingModelCatalog", "The catalog has closed", nullptr},
    {L"MoveX", "Nudged to the left", "Nudged to the right"},
    {L"MoveY", "Nudged up", "Nudged down"},
    {L"RotateX", "Tilted up", "Tilted down"},
    {L"RotateY", "Tilted to the left", "Tilted to the right"},
    {L"RotateZ", "Turned clockwise", "Turned counter-clockwise"},
    {L"ScaleModel", "Enlarged", "Shrunk"},
    {L"ResetHome", "Brought home", nullptr},
    {L"SetOrientation", "Turned to a given view", nullptr},
    {L"LookStyle", "Drawn in the style %", nullptr},
    {L"SurfaceColor", "Filled with another colour", nullptr},
    {L"LineColor", "Lines in another colour", nullptr},
    {L"BackgroundColor", "Background in another colour", nullptr},
    {L"RestoreDefaultSurfaceColor", "Filled with the style's own colour", nullptr},
    {L"RestoreDefaultLineColor", "Lines in the style's own colour", nullptr},
    {L"RestoreDefaultBackgroundColor", "Background in the style's own colour", nullptr},
    {L"LineThicknessScale", "Lines at % per cent of their thickness", nullptr},
    {L"LightIsOn", "The light is on", "The light is off"},
    {L"SetLightDirection", "Lit from another side", nullptr},
    {L"AnimationCurrentFrame", "Showing frame %", nullptr},
    {L"AnimationIncrementFrame", "One frame on", nullptr},
    {L"AnimationDecrementFrame", "One frame back", nullptr},
    {L"AnimationState", "Playing", "Paused"},
    {L"AnimationLoopState", "The animation repeats", "The animation plays once"},
    {L"StopTimer", "The animation waits", nullptr},
    {L"StartTimer", "The animation goes on", nullptr},
};

bool isNegative(const CallRecord& record) {
  if (record.arguments.count() == 0) return false;
  Variant value;
  VARIANTARG& argument = record.arguments.at(0);
  if (FAILED(VariantCopyInd(&value, &argument)) || value.vt == VT_BSTR) return false;
  const bool isSwitch = value.vt == VT_BOOL;
  if (FAILED(VariantChangeType(&value, &value, 0, VT_R8))) return false;
  return isSwitch ? value.dblVal == 0 : value.dblVal < 0;
}

std::string filled(std::string phrase, const CallRecord& record) {
  const std::size_t place = phrase.find('%');
  if (place == std::string::npos || record.arguments.count() == 0) return phrase;
  return phrase.replace(place, 1, writtenValue(record.arguments.at(0)));
}

}  // namespace

std::string wordsFor(const CallRecord& record) {
  if (record.kind == CallKind::get) return {};
  if (!record.failure.empty()) return "Refused: " + record.failure;
  for (const Phrase& phrase : phrases) {
    if (phrase.member != record.member) continue;
    const bool negative = phrase.negative != nullptr && isNegative(record);
    return filled(negative ? phrase.negative : phrase.positive, record);
  }
  return {};
}

}  // namespace nerida::host

#include "tests/unit/desk.h"

#include <algorithm>
#include <stdexcept>

namespace nerida {

Value textArray(const std::vector<std::string>& texts, std::int32_t lowerBound) {
  auto array = std::make_shared<Array>();
  array->lowerBound = lowerBound;
  array->elements.assign(texts.begin(), texts.end());
  return Value(std::shared_ptr<const Array>(array));
}

Lines withoutBars(Lines lines) {
  std::erase_if(lines, [](const std::string& line) { return line.starts_with("bar"); });
  return lines;
}

Lines withoutCatalog(Lines lines) {
  std::erase_if(lines, [](const std::string& line) {
    const auto inside = {"search component: ",  "picture ",    "mnu",
                         "txtSearch: ",         "cmbStyles: ", "model: GetLookStyleList",
                         "model: LookStyleName"};
    return std::ranges::any_of(inside, [&](const char* start) { return line.starts_with(start); });
  });
  return lines;
}

Desk::Desk() {
  platform.registry.keys = {
      {"Software", {}},
      {"Software\\Tarnwell", {}},
      {"Software\\Tarnwell\\Zephra",
       {{"Dictionary", "C:\\Zephra"}, {"System", "C:\\Zephra\\System"}, {"Help", "C:\\Zephra\\Help"}}},
      {"Software\\Tarnwell\\Zephra\\1.0", {{"Models", "C:\\Zephra\\Models"}}},
  };
  platform.files.files = platform.files.pictures = {"C:\\Zephra\\zpcatbut.bmp"};
  model->values = {
      {"ModelName", std::string("Windmill")},
      {"InterfaceFlags", std::int32_t{0}},
      {"IsToolbarShowing", false},
      {"IsCatalogShowing", false},
      {"DoneShowingModelCatalog", false},
      {"TarnwellXFile", std::string()},
      {"ModelScale", std::int32_t{0}},
      {"LookStyleName", std::string("Shaded")},
      {"LookStyle", std::string()},
      {"AnimationFrameCount", std::int32_t{0}},
      {"AnimationCurrentFrame", std::int32_t{0}},
      {"AnimationState", false},
      {"IsBackgroundDefault", true},
      {"IsLineColorDefault", true},
      {"IsSurfaceColorDefault", true},
      {"BackgroundColor", std::int32_t{0}},
      {"LineColor", std::int32_t{0}},
      {"SurfaceColor", std::int32_t{0}},
  };
  for (const char* member : {"RefreshDisplay", "MoveX", "MoveY", "RotateX", "RotateY", "RotateZ", "ScaleModel",
                             "ResetHome", "SetOrientation", "StopTimer", "StartTimer", "RestoreDefaultBackgroundColor",
                             "RestoreDefaultLineColor", "RestoreDefaultSurfaceColor"}) {
    model->functions[member] = nullptr;
  }
  setStyles({"Shaded", "Ink Outline"});
}

void Desk::setStyles(const std::vector<std::string>& names) {
  model->functions["GetLookStyleList"] = [names](std::span<Argument> arguments) {
    *arguments[0].variable = textArray(names);
    return Value();
  };
}

void Desk::createAndInit() {
  create();
  init();
  take();
}

void Desk::createInitAndShow() {
  createAndInit();
  show();
  take();
}

headless::FormWindow& Desk::form(const std::string& name) const {
  headless::FormWindow* window = platform.windows.find(name);
  if (!window) throw std::logic_error(name + " is not loaded");
  return *window;
}

void Desk::pressWithMouse(headless::Bar& target, const std::string& key) {
  platform.screen.milliseconds += 200;
  target.clickedAt = platform.screen.milliseconds;
  toolbar().userActivates();
  target.press(key);
  target.clickedAt.reset();
}

void Desk::showBeside(Popup& popup) {
  platform.windows.focus.holder = nullptr;
  popup.ShowSelf(1, 1);
}

void Desk::answerBoxes(int count) {
  platform.boxes.answers.insert(platform.boxes.answers.end(), static_cast<std::size_t>(count), PromptAnswer::ok);
}

Lines Desk::takeLines(const std::string& prefix) {
  Lines lines = take();
  std::erase_if(lines, [&](const std::string& line) { return !line.starts_with(prefix); });
  return lines;
}

}  // namespace nerida

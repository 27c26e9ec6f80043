// The movement groups: nudge, tilt, size, reset and the preset views.
#include <array>

#include "toolbar/frm_toolbar.h"

namespace nerida {
namespace {

// The trailing blanks belong to the captions.
constexpr std::array<const char*, 8> presetCaptions{
    "Reset &Model", "-", "to &Front", "to &Back ", "to &Right Side", "to &Left Side", "to &Top", "to &Bottom "};

struct Step {
  const char* key;
  void (ModelObject::*move)(std::int16_t);
  std::int16_t units;
};

constexpr Step steps[] = {
    {"NudgeUp", &ModelObject::MoveY, 1},           {"NudgeDown", &ModelObject::MoveY, -1},
    {"NudgeLeft", &ModelObject::MoveX, 1},         {"NudgeRight", &ModelObject::MoveX, -1},
    {"RotateUp", &ModelObject::RotateX, 2},        {"RotateDown", &ModelObject::RotateX, -2},
    {"RotateLeft", &ModelObject::RotateY, 2},      {"RotateRight", &ModelObject::RotateY, -2},
    {"RotateClockwise", &ModelObject::RotateZ, 2}, {"RotateCounter", &ModelObject::RotateZ, -2},
    {"Shrink", &ModelObject::ScaleModel, -1},      {"Enlarge", &ModelObject::ScaleModel, 1},
};

// Hundredths of a degree; every angle is at least 0 and below a full turn.
struct Orientation {
  std::int16_t x, y, z;
};

constexpr std::array<Orientation, 6> orientations{{
    {0, 0, 0},      // front
    {0, 18000, 0},  // back
    {0, 9000, 0},   // right side
    {0, 27000, 0},  // left side
    {27000, 0, 0},  // top
    {9000, 0, 0},   // bottom
}};
constexpr int firstOrientationItem = 2;

}  // namespace

void frmToolbar::barMove_ButtonPress(const std::string& key) {
  handle(messages, [&] {
    openMarks = {};
    if (key == "ResetModel") {
      model.ResetHome();
      model.RefreshDisplay();
    }
    if (key == "PresetDropdown") openPresetMenu();
    for (const Step& step : steps) {
      if (key == step.key) (model.*step.move)(step.units);
    }
  });
}

// The menu hangs below the first movement group and ends at its right edge.
void frmToolbar::openPresetMenu() {
  const Bounds group = bar("barMove", 0).bounds();
  const std::shared_ptr<Window> form = sharedWindow();  // the form may be unloaded while the menu is open
  const int item = form->popUpMenuRightAligned(presetCaptions, group.left + group.width, group.top + group.height);
  if (item >= 0 && isLoaded()) mnuReset_Click(item);
}

// A failing call is skipped, and the redraw is asked for in any case.
void frmToolbar::mnuReset_Click(int index) {
  openMarks = {};
  const int orientation = index - firstOrientationItem;
  if (index == 0) {
    ignoringErrors([&] { model.ResetHome(); });
  } else if (orientation >= 0 && orientation < static_cast<int>(orientations.size())) {
    const Orientation& view = orientations[static_cast<std::size_t>(orientation)];
    ignoringErrors([&] { model.SetOrientation(view.x, view.y, view.z); });
  }
  ignoringErrors([&] { model.RefreshDisplay(); });
}

}  // namespace nerida

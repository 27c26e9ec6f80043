#include "toolbar/button_table.h"

#include <algorithm>
#include <string_view>

namespace nerida {
namespace {

// clang-format off
constexpr ButtonRow rows[] = {
    {"barMB",    0, "Model",            "5, Model.bmp, 0,0",                     "Replace Zephra",         ""},
    {"barLS",    0, "LineThickness",    "6,LineThickness.bmp,0,0,23,22",         "Line Thickness",         ""},
    {"barLS",    1, "LineColorFill",    "6,LineColor.bmp,0,0,23,22",             "Line Color",             ""},
    {"barLS",    2, "SurfaceColorFill", "6,SurfColor.bmp,0,0,23,22",             "Fill Color",             ""},
    {"barLS",    3, "Background",       "6,Background.bmp,0,0,23,22",            "Background Options",     ""},
    {"barWorld", 0, "Move",             "6,Move.bmp,0,0,23,22",                  "Model Orientation",      "Move"},
    {"barWorld", 0, "Lighting",         "6,Lighting.bmp,23,0,23,22",             "Lighting",               "Lighting"},
    {"barWorld", 1, "Animation",        "5,Animation.bmp,0,0,23,22",             "Animation Playback",     "Animation"},
    {"barWorld", 2, "Help",             "5, Help_toolbar.bmp, 0, 0",             "Zephra Help",            ""},
    {"barMove",  0, "ResetModel",       "5, movereset.bmp, 0,0",                 "Reset Model",            ""},
    {"barMove",  0, "PresetDropdown",   "5, downarrow.bmp, 23,0",                "",                       ""},
    {"barMove",  1, "NudgeUp",          "5, moveup.bmp, 0,0",                    "Nudge up",               ""},
    {"barMove",  1, "NudgeDown",        "5, movedown.bmp, 23,0",                 "Nudge Down",             ""},
    {"barMove",  1, "NudgeLeft",        "5, moveleft.bmp, 46, 0",                "Nudge Left",             ""},
    {"barMove",  1, "NudgeRight",       "5, moveright.bmp, 69,0",                "Nudge Right",            ""},
    {"barMove",  2, "RotateUp",         "5, rotate_up.bmp, 0,0",                 "Tilt Up",                ""},
    {"barMove",  2, "RotateDown",       "5, rotate_down.bmp, 23, 0",             "Tilt Down",              ""},
    {"barMove",  2, "RotateLeft",       "5, rotate_left.bmp, 46, 0",             "Tilt Left",              ""},
    {"barMove",  2, "RotateRight",      "5, rotate_right.bmp, 69, 0",            "Tilt Right",             ""},
    {"barMove",  2, "RotateClockwise",  "5, rotate_clockwise.bmp, 92, 0",        "Tilt Clockwise",         ""},
    {"barMove",  2, "RotateCounter",    "5, rotate_counterclockwise.bmp, 115, 0", "Tilt Counter-clockwise", ""},
    {"barMove",  3, "Shrink",           "5, scale_down.bmp, 0,0",                "Decrease Model Size",    "Shrink"},
    {"barMove",  3, "Enlarge",          "5, scale_up.bmp, 23, 0",                "Increase Model Size",    "Enlarge"},
};
// clang-format on

}  // namespace

std::span<const ButtonRow> buttonsOf(const char* bar, int index) {
  const auto belongs = [&](const ButtonRow& row) { return std::string_view(bar) == row.bar && row.index == index; };
  const auto first = std::find_if(std::begin(rows), std::end(rows), belongs);
  const auto last = std::find_if_not(first, std::end(rows), belongs);
  return {first, last};
}

}  // namespace nerida

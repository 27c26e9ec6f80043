#include "toolbar/toolbar_layout.h"

#include <array>

namespace nerida {
namespace {

constexpr Bounds at(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
  return {{left}, {top}, {width}, {height}};
}

constexpr std::int32_t row1 = 0;
constexpr std::int32_t row2 = 405;  // what unfolding adds to the window's height
constexpr std::int32_t barHeight = 375;

// A swatch stands in the place of the style button that it replaces, and the indicator over the Animation button.
constexpr Bounds lineThicknessPlace = at(495, row1, 405, barHeight);
constexpr Bounds linePlace = at(900, row1, 405, barHeight);
constexpr Bounds surfacePlace = at(1305, row1, 405, barHeight);
constexpr Bounds animationPlace = at(6270, row1, 1275, barHeight);

constexpr std::array controls{
    ControlLayout{"barMB", 0, ControlKind::buttonBar, at(30, row1, 405, barHeight), "", "Model"},
    ControlLayout{"barLS", 0, ControlKind::buttonBar, lineThicknessPlace, "", "Line thickness"},
    ControlLayout{"barLS", 1, ControlKind::buttonBar, linePlace, "", "Line color"},
    ControlLayout{"barLS", 2, ControlKind::buttonBar, surfacePlace, "", "Fill color"},
    ControlLayout{"barLS", 3, ControlKind::buttonBar, at(1710, row1, 405, barHeight), "", "Background"},
    ControlLayout{"picLineThick", 0, ControlKind::pictureBox, lineThicknessPlace},
    ControlLayout{"picLine", 0, ControlKind::pictureBox, linePlace},
    ControlLayout{"picSurface", 0, ControlKind::pictureBox, surfacePlace},
    ControlLayout{"cmbStyles", 0, ControlKind::comboBox, at(2190, row1 + 15, 1950, 330), "", "Select a new LookStyle"},
    ControlLayout{"barWorld", 0, ControlKind::buttonBar, at(4215, row1, 2055, barHeight), "", "Move and lighting"},
    ControlLayout{"picAni", 0, ControlKind::pictureBox, animationPlace},
    ControlLayout{"barWorld", 1, ControlKind::buttonBar, animationPlace, "", "Animation"},
    ControlLayout{"barWorld", 2, ControlKind::buttonBar, at(7605, row1, 405, barHeight), "", "Help"},
    ControlLayout{"barMove", 0, ControlKind::buttonBar, at(30, row2, 810, barHeight), "", "Reset and presets"},
    ControlLayout{"barMove", 1, ControlKind::buttonBar, at(915, row2, 1620, barHeight), "", "Nudge"},
    ControlLayout{"txtNudgeAmt", 0, ControlKind::textBox, at(2580, row2 + 30, 540, 315), "100", "Enter Nudge Amount"},
    ControlLayout{"barMove", 2, ControlKind::buttonBar, at(3195, row2, 2430, barHeight), "", "Tilt"},
    ControlLayout{"barMove", 3, ControlKind::buttonBar, at(5700, row2, 2295, barHeight), "", "Size"},
};

}  // namespace

const FormLayout toolbarLayout{"frmToolbar", "Zephra Toolbar", FormFrame::toolWindow, {8055}, foldedHeight, controls};

}  // namespace nerida

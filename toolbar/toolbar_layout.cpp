#include "toolbar/toolbar_layout.h"

#include <array>

namespace nerida {
namespace {

constexpr std::int32_t row1 = 0;
constexpr std::int32_t row2 = 435;  // below the folded window's lower edge at every screen resolution
constexpr std::int32_t barHeight = 375;

constexpr std::int32_t button = 375;  // width of a button without a caption

// A swatch stands in the place of the style button that it replaces, and the indicator over the Animation button.
constexpr Bounds lineThicknessPlace = at(480, row1, button, barHeight);
constexpr Bounds linePlace = at(480 + button, row1, button, barHeight);
constexpr Bounds surfacePlace = at(480 + 2 * button, row1, button, barHeight);
constexpr Bounds backgroundPlace = at(480 + 3 * button, row1, button, barHeight);
constexpr Bounds animationPlace = at(6330, row1, 1425, barHeight);

constexpr std::array controls{
    ControlLayout{"barMB", 0, ControlKind::buttonBar, at(30, row1, button, barHeight), "", "Model"},
    ControlLayout{"barLS", 0, ControlKind::buttonBar, lineThicknessPlace, "", "Line thickness"},
    ControlLayout{"barLS", 1, ControlKind::buttonBar, linePlace, "", "Line color"},
    ControlLayout{"barLS", 2, ControlKind::buttonBar, surfacePlace, "", "Fill color"},
    ControlLayout{"barLS", 3, ControlKind::buttonBar, backgroundPlace, "", "Background"},
    ControlLayout{"picLineThick", 0, ControlKind::pictureBox, lineThicknessPlace, "", "Line thickness"},
    ControlLayout{"picLine", 0, ControlKind::pictureBox, linePlace, "", "Line color"},
    ControlLayout{"picSurface", 0, ControlKind::pictureBox, surfacePlace, "", "Fill color"},
    ControlLayout{"cmbStyles", 0, ControlKind::comboBox, at(2055, row1 + 15, 1950, 330), "", "Select a new LookStyle"},
    ControlLayout{"barWorld", 0, ControlKind::buttonBar, at(4080, row1, 2250, barHeight), "", "Move and lighting"},
    ControlLayout{"picAni", 0, ControlKind::pictureBox, animationPlace, "", "Animation"},
    ControlLayout{"barWorld", 1, ControlKind::buttonBar, animationPlace, "", "Animation"},
    ControlLayout{"barWorld", 2, ControlKind::buttonBar, at(7785, row1, button, barHeight), "", "Help"},
    ControlLayout{"barMove", 0, ControlKind::buttonBar, at(30, row2, 2 * button, barHeight), "", "Reset and presets"},
    ControlLayout{"barMove", 1, ControlKind::buttonBar, at(855, row2, 4 * button, barHeight), "", "Nudge"},
    ControlLayout{"txtNudgeAmt", 0, ControlKind::textBox, at(2415, row2 + 30, 525, 315), "100", "Enter Nudge Amount"},
    ControlLayout{"barMove", 2, ControlKind::buttonBar, at(3015, row2, 6 * button, barHeight), "", "Tilt"},
    ControlLayout{"barMove", 3, ControlKind::buttonBar, at(5340, row2, 2415, barHeight), "", "Size"},
};

}  // namespace

const FormLayout toolbarLayout{"frmToolbar", "Zephra Toolbar", FormFrame::toolWindow, {8190}, foldedHeight, controls};

}  // namespace nerida

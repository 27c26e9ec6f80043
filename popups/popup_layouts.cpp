#include "popups/popup_layouts.h"

#include <array>

namespace nerida {
namespace {

constexpr std::int32_t button = 375;  // side of a square button
constexpr std::int32_t margin = 60;
constexpr std::int32_t frame = 90;  // of a popup's window, both edges together

// A panel lies under the bars of its form and fills it; what is listed earlier is in front.
constexpr std::array thicknessControls{
    ControlLayout{"barThick", 0, ControlKind::buttonBar, at(margin, margin, button, 5 * button), "", "Line thickness"},
    ControlLayout{"pnlThickness", 0, ControlKind::pictureBox, at(0, 0, 2 * margin + button, 2 * margin + 5 * button),
                  "", "Line thickness"},
};

// The lamps stand around the cube as the directions do, two to a bar: each bar holds a corner and the next edge.
constexpr std::int32_t lamp1 = margin;
constexpr std::int32_t lamp2 = lamp1 + button;
constexpr std::int32_t lamp3 = lamp2 + button;
constexpr std::int32_t lampsEnd = lamp3 + button;
constexpr std::int32_t switchLeft = lampsEnd + 2 * margin;
constexpr std::int32_t lightingWidth = switchLeft + button + margin;
constexpr std::int32_t lightingHeight = lampsEnd + margin;

constexpr std::array lightingControls{
    ControlLayout{"barLamp", 0, ControlKind::buttonBar, at(lamp1, lamp1, 2 * button, button), "",
                  "Lamps at the upper left"},
    ControlLayout{"barLamp", 1, ControlKind::buttonBar, at(lamp3, lamp1, button, 2 * button), "",
                  "Lamps at the upper right"},
    ControlLayout{"barLamp", 4, ControlKind::buttonBar, at(lamp2, lamp2, button, button), "", "Lit cube"},
    ControlLayout{"barLamp", 3, ControlKind::buttonBar, at(lamp1, lamp2, button, 2 * button), "",
                  "Lamps at the lower left"},
    ControlLayout{"barLamp", 2, ControlKind::buttonBar, at(lamp2, lamp3, 2 * button, button), "",
                  "Lamps at the lower right"},
    ControlLayout{"barSwitch", 0, ControlKind::buttonBar, at(switchLeft, lamp2, button, button), "", "Light switch"},
    ControlLayout{"pnlLight", 0, ControlKind::pictureBox, at(0, 0, lightingWidth, lightingHeight), "", "Lighting"},
};

constexpr std::int32_t rewindLeft = margin;
constexpr std::int32_t playLeft = rewindLeft + 2 * button + 30;
constexpr std::int32_t forwardLeft = playLeft + button + 30;
constexpr std::int32_t frameLeft = forwardLeft + 2 * button + margin;
constexpr std::int32_t loopLeft = frameLeft + 600 + margin;
constexpr std::int32_t animationWidth = loopLeft + button + margin;

// While the animation plays, a placeholder stands in the place of each step button.
constexpr std::array animationControls{
    ControlLayout{"picAniFrame", 0, ControlKind::pictureBox, at(rewindLeft, margin, button, button), "",
                  "Unavailable while playing"},
    ControlLayout{"picAniFrame", 1, ControlKind::pictureBox, at(rewindLeft + button, margin, button, button), "",
                  "Unavailable while playing"},
    ControlLayout{"picAniFrame", 2, ControlKind::pictureBox, at(forwardLeft, margin, button, button), "",
                  "Unavailable while playing"},
    ControlLayout{"picAniFrame", 3, ControlKind::pictureBox, at(forwardLeft + button, margin, button, button), "",
                  "Unavailable while playing"},
    ControlLayout{"barRewind", 0, ControlKind::buttonBar, at(rewindLeft, margin, 2 * button, button), "", "Rewind"},
    ControlLayout{"picPlayPause", 0, ControlKind::pictureBox, at(playLeft, margin, button, button)},
    ControlLayout{"barForward", 0, ControlKind::buttonBar, at(forwardLeft, margin, 2 * button, button), "", "Forward"},
    ControlLayout{"txtFrame", 0, ControlKind::textBox, at(frameLeft, margin + 30, 600, 315), "", "Frame number"},
    ControlLayout{"barLoop", 0, ControlKind::buttonBar, at(loopLeft, margin, button, button), "", "Playback mode"},
};

}  // namespace

constinit const FormLayout lineThicknessLayout = popupLayout(
    "frmLineThicknessMenu", "Line Thickness", 2 * margin + button, 2 * margin + 5 * button + frame, thicknessControls);
constinit const FormLayout lightingLayout =
    popupLayout("frmLighting", "Lighting", lightingWidth, lightingHeight + frame, lightingControls);
constinit const FormLayout animationLayout =
    popupLayout("frmAnimation", "Animation Playback", animationWidth, 2 * margin + button + frame, animationControls);

}  // namespace nerida

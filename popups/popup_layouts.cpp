#include "popups/popup_layouts.h"

#include <array>

namespace nerida {
namespace {

constexpr std::array animationControls{
    ControlLayout{"txtFrame", 0, ControlKind::textBox, {{1170}, {60}, {600}, {300}}, "", "Frame number"},
};

}  // namespace

constinit const FormLayout lineThicknessLayout{"frmLineThicknessMenu", "", FormFrame::popup, {1200}, {1500}, {}};
constinit const FormLayout lightingLayout{"frmLighting", "", FormFrame::popup, {1800}, {1500}, {}};
constinit const FormLayout animationLayout{"frmAnimation", "", FormFrame::popup, {2940}, {480}, animationControls};

}  // namespace nerida

// How the three palettes look alike. The entries lie on the panel: controls that come first are in front. Tab goes
// from the grid down to More Colors, then round to the top.
#include <array>

#include "popups/palette_grid.h"
#include "popups/popup_layouts.h"

namespace nerida {
namespace {

constexpr std::int32_t styleTop = 105;
constexpr std::int32_t moreTop = 2385;
constexpr std::int32_t labelInset = 60;
constexpr std::int32_t labelLeft = 480;
constexpr std::int32_t labelWidth = 1740;
constexpr std::int32_t labelHeight = 210;

constexpr std::array controls{
    ControlLayout{"lblMoreColors", 0, ControlKind::label, at(labelLeft, moreTop + labelInset, labelWidth, labelHeight),
                  "More Colors"},
    ControlLayout{"picMoreColors", 0, ControlKind::pictureBox,
                  at(gridLeft, moreTop, paletteEntryWidth, paletteEntryHeight)},
    ControlLayout{"lblLSColor", 0, ControlKind::label, at(labelLeft, styleTop + labelInset, labelWidth, labelHeight),
                  "LookStyle Default"},
    ControlLayout{"picLSSwatch", 0, ControlKind::pictureBox,
                  at(gridLeft, styleTop, paletteEntryWidth, paletteEntryHeight)},
    ControlLayout{"pnlColor", 0, ControlKind::pictureBox, at(0, 0, 2400, 2805), "", "Colors"},
};

constexpr FormLayout paletteNamed(const char* name, const char* accessibleName) {
  return popupLayout(name, accessibleName, 2400, 2895, controls);
}

}  // namespace

constinit const FormLayout backgroundColorsLayout = paletteNamed("frmBackgroundColors", "Background Options");
constinit const FormLayout lineColorsLayout = paletteNamed("frmLineColors", "Line Color");
constinit const FormLayout surfaceColorsLayout = paletteNamed("frmSurfaceColors", "Fill Color");

}  // namespace nerida

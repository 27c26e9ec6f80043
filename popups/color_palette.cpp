#include "popups/color_palette.h"

namespace nerida {

ColorPalette::ColorPalette(State& state, WindowFactory& windows, Desktop& desktop, PopupOpener& opener,
                           const PaletteRole& role)
    : Popup(state, windows, desktop, role.layout, role.index, opener), role(role) {}

void ColorPalette::HideSelf() {
  if (closing) return;
  closing = true;
  hideWindow();
  markShown(false);
  opener.KillChild();
  opener.takeForeground();
  opener.releaseButton(role.buttonKey);
}

}  // namespace nerida

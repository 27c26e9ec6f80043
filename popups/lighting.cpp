#include "popups/lighting.h"

#include "popups/popup_layouts.h"

namespace nerida {

frmLighting::frmLighting(State& state, WindowFactory& windows, Desktop& desktop, PopupOpener& opener)
    : Popup(state, windows, desktop, lightingLayout, lightingIndex, opener) {}

void frmLighting::HideSelf() {
  if (closing) return;
  hideWindow();
  opener.KillChild();
  opener.takeForeground();
  opener.releaseButton("Lighting");
  markShown(false);
  closing = true;
}

}  // namespace nerida

#include "popups/animation.h"

#include "popups/popup_layouts.h"

namespace nerida {

frmAnimation::frmAnimation(State& state, WindowFactory& windows, Desktop& desktop, PopupOpener& opener)
    : Popup(state, windows, desktop, animationLayout, animationIndex, opener) {}

void frmAnimation::HideSelf() {
  if (!closing) {
    hideWindow();
    opener.KillChild();
    opener.takeForeground();
    markShown(false);
  }
  closing = true;
}

}  // namespace nerida

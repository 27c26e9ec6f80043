#include "popups/animation.h"

#include "popups/popup_layouts.h"

namespace nerida {

frmAnimation::frmAnimation(State& state, WindowFactory& windows, PopupOpener& opener)
    : Popup(state, windows, animationLayout, animationIndex, opener) {}

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

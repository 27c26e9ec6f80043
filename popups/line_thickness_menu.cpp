#include "popups/line_thickness_menu.h"

#include "popups/popup_layouts.h"

namespace nerida {

frmLineThicknessMenu::frmLineThicknessMenu(State& state, WindowFactory& windows, Desktop& desktop, PopupOpener& opener)
    : Popup(state, windows, desktop, lineThicknessLayout, lineThicknessIndex, opener) {}

void frmLineThicknessMenu::HideSelf() {
  if (closing) return;
  hideWindow();
  opener.KillChild();
  opener.takeForeground();
  opener.releaseButton("LineThickness");
  markShown(false);
  closing = true;
}

}  // namespace nerida

#pragma once

#include "popups/popup.h"

namespace nerida {

// The menu of line thicknesses.
class frmLineThicknessMenu : public Popup {
 public:
  frmLineThicknessMenu(State& state, WindowFactory& windows, Desktop& desktop, PopupOpener& opener);

  void HideSelf() override;
};

}  // namespace nerida

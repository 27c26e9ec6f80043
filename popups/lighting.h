#pragma once

#include "popups/popup.h"

namespace nerida {

// The picker of the light's direction and its switch.
class frmLighting : public Popup {
 public:
  frmLighting(State& state, WindowFactory& windows, Desktop& desktop, PopupOpener& opener);

  void HideSelf() override;
};

}  // namespace nerida

#pragma once

#include "popups/popup.h"

namespace nerida {

// The playback bar of an animated model. It stays open until it is told to hide.
class frmAnimation : public Popup {
 public:
  frmAnimation(State& state, WindowFactory& windows, Desktop& desktop, PopupOpener& opener);

  void HideSelf() override;
  // The frame field. Touching it loads the form.
  void setFrameText(const std::string& text) { window().textBox("txtFrame").setText(text); }
};

}  // namespace nerida

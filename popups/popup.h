#pragma once

#include <cstdint>
#include <string>

#include "core/form.h"
#include "popups/popup_opener.h"

namespace nerida {

// What the toolbar's popups have in common: they are loaded when first shown, placed topmost at a screen point, and
// report their closing once.
class Popup : public Form {
 public:
  Popup(State& state, WindowFactory& windows, const FormLayout& layout, int index, PopupOpener& opener)
      : Form(state, windows, layout, index), opener(opener) {}

  // Top-left corner in screen pixels. Failures end it quietly.
  virtual void ShowSelf(std::int16_t x, std::int16_t y);

 protected:
  void Form_Load() override;

  PopupOpener& opener;
  // Set while the popup is hidden or hiding: a second close request then does nothing.
  bool closing = false;
};

}  // namespace nerida

#pragma once

#include <cstdint>
#include <string>

#include "platform/canvas.h"
#include "platform/units.h"

namespace nerida {

// The three colours of a model that have a palette.
enum class ColorRole { background, line, surface };

// What a popup needs of the toolbar that opened it.
class PopupOpener {
 public:
  virtual ~PopupOpener() = default;
  // A popup reports that it has closed: the mark of that form is cleared. Error 6 when the count of open popups leaves
  // 16 bits.
  virtual void KillChild() = 0;
  // Told after every choice in a popup: sets the marks of all five popups, 0 for closed.
  virtual void afterChoice(std::int16_t open) = 0;
  // Releases the latched button that opened the popup and redraws it.
  virtual void releaseButton(const std::string& key) = 0;
  // Asks for the foreground for the toolbar's window.
  virtual void takeForeground() = 0;

  // Runs the colour dialog for a role, owned by the popup's window. On a choice the model's colour is set and the
  // result is true; a cancel or any failure changes nothing and gives false. Never fails.
  virtual bool chooseCustomColor(ColorRole role, WindowHandle owner) = 0;
  // The custom colour that was chosen last for a role.
  virtual Rgb customColor(ColorRole role) const = 0;
  // The colour that a palette shows when it closes.
  virtual void setShownColor(ColorRole role, Rgb color) = 0;
};

}  // namespace nerida

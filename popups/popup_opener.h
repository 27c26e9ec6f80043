#pragma once

#include <string>

#include "platform/units.h"

namespace nerida {

// What a popup needs of the toolbar that opened it.
class PopupOpener {
 public:
  virtual ~PopupOpener() = default;
  // A popup reports that it has closed. Error 6 when the count of open popups leaves 16 bits.
  virtual void KillChild() = 0;
  // Releases the latched button that opened the popup and redraws it.
  virtual void releaseButton(const std::string& key) = 0;
  // Asks for the foreground for the toolbar's window.
  virtual void takeForeground() = 0;
};

}  // namespace nerida

#include "popups/popup.h"

namespace nerida {

void Popup::ShowSelf(std::int16_t x, std::int16_t y) {
  ignoringErrors([&] {
    window().showTopmostAt({x, y});
    closing = false;
    markShown(true);
  });
}

void Popup::Form_Load() {
  closing = false;
  markLoaded();
}

}  // namespace nerida

#include "popups/popup.h"

namespace nerida {

void Popup::ShowSelf(std::int16_t x, std::int16_t y) {
  ignoringErrors([&] {
    const FocusGuard staysOpen(*this);
    window().showTopmostAt({x, y});
    closing = false;
    markShown(true);
  });
}

void Popup::Form_Load() {
  closing = false;
  markLoaded();
}

void Popup::closeIfFocusWentElsewhere() {
  if (focusGuards > 0 || !isLoaded() || desktop.activeWindow() == hWnd()) return;
  struct WhileLosing {
    explicit WhileLosing(bool& flag) : flag(flag) { flag = true; }
    ~WhileLosing() { flag = false; }
    bool& flag;
  } const whileLosing(losingFocus);
  HideSelf();
}

}  // namespace nerida

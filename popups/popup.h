#pragma once

#include <cstdint>
#include <string>

#include "core/form.h"
#include "platform/desktop.h"
#include "popups/popup_opener.h"

namespace nerida {

// What the toolbar's popups have in common: they are loaded when first shown, placed topmost at a screen point, and
// report their closing once.
class Popup : public Form {
 public:
  Popup(State& state, WindowFactory& windows, Desktop& desktop, const FormLayout& layout, int index,
        PopupOpener& opener)
      : Form(state, windows, layout, index), opener(opener), desktop(desktop) {}

  // Top-left corner in screen pixels. Failures end it quietly.
  virtual void ShowSelf(std::int16_t x, std::int16_t y);
  // Touching the size loads the form.
  Size sizeInPixels() { return window().sizeInPixels(); }
  // While the popup closes because another window has become the active one.
  bool isLosingFocus() const { return losingFocus; }

 protected:
  // While one of these lives the popup stays open though the focus goes: it hides itself, shows itself, or has opened
  // a dialog.
  class FocusGuard {
   public:
    explicit FocusGuard(Popup& popup) : count(popup.focusGuards) { ++count; }
    ~FocusGuard() { --count; }
    FocusGuard(const FocusGuard&) = delete;
    FocusGuard& operator=(const FocusGuard&) = delete;

   private:
    int& count;
  };

  // Whether the model may go on showing this popup: false once the toolbar was hidden or unloaded inside a call that
  // began while it showed.
  class OpenerWatch {
   public:
    explicit OpenerWatch(const State& state) : state(state), wasShown(state.gFormShown[toolbarIndex]) {}
    bool stillThere() const { return !wasShown || state.gFormShown[toolbarIndex]; }

   private:
    const State& state;
    bool wasShown;
  };

  void Form_Load() override;

  // For the event that a control of the popup has lost the focus: closes the popup when the activation has gone to
  // another window. Raises what HideSelf raises.
  void closeIfFocusWentElsewhere();

  PopupOpener& opener;
  // Set while the popup is hidden or hiding: a second close request then does nothing.
  bool closing = false;

 private:
  Desktop& desktop;
  int focusGuards = 0;
  bool losingFocus = false;
};

}  // namespace nerida

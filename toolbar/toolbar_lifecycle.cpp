// Showing, hiding and hooking the toolbar; its model and world buttons; what its popups tell it.
#include <limits>

#include "core/popup_hiding.h"
#include "toolbar/frm_toolbar.h"
#include "toolbar/toolbar_layout.h"

namespace nerida {

void frmToolbar::ShowSelf() {
  handle(messages, [this] {
    NudgeToggle(NudgeOn);
    markShown(true);
    model.setIsToolbarShowing(true);
    Window& form = loadedWindow();
    form.showTopmostAt(form.position());
  });
}

void frmToolbar::HideSelf() {
  handle(messages, [this] { hideWithPopups(); });
}

// The toolbar's own mark is among those walked; the walk must not come back here.
void frmToolbar::hideWithPopups() {
  if (hiding) return;
  struct WhileHiding {
    explicit WhileHiding(bool& flag) : flag(flag) { flag = true; }
    ~WhileHiding() { flag = false; }
    bool& flag;
  } const whileHiding(hiding);

  hideShownForms(state, toolbarIndex, catalogIndex);
  markShown(false);
  if (model.exists()) model.setIsToolbarShowing(false);
  hideWindow();
}

void frmToolbar::SetCallback() { window().hook(neighbours.windowProcedure); }

void frmToolbar::RestoreCallback() {
  if (isLoaded()) window().unhook();
}

std::intptr_t frmToolbar::callPrevious(Message message) {
  if (!isLoaded()) return 0;
  message.window = hWnd();
  return window().callPrevious(message);
}

void frmToolbar::NudgeToggle(bool on) {
  window().setHeight(on ? unfoldedHeight : foldedHeight);
  bar("barWorld", 0).setState("Move", on ? buttonDown : buttonUp, true);
  NudgeOn = on;
}

void frmToolbar::barWorld_ButtonPress(const std::string& key) {
  handle(messages, [&] {
    openMarks.lineThickness = openMarks.lineColor = openMarks.fillColor = openMarks.background = false;
    if (key == "Move") {
      NudgeToggle(!NudgeOn);
    } else if (key == "Help") {
      neighbours.catalog->ShowHelpFile();
    }
  });
}

void frmToolbar::barMB_ButtonPress(const std::string&) {
  handle(messages, [this] {
    HideSelf();
    if (model.AnimationState()) {
      model.setAnimationState(false);
      model.StopTimer();
    }
    if (isLoaded()) neighbours.catalog->ShowSelf();
  });
}

void frmToolbar::KillChild() {
  if (OpenChild == std::numeric_limits<std::int16_t>::min()) throw Error(error::overflow);
  --OpenChild;
}

void frmToolbar::releaseButton(const std::string& key) {
  static constexpr struct {
    const char* key;
    const char* bar;
    int index;
  } owners[] = {{"LineThickness", "barLS", 0},
                {"LineColorFill", "barLS", 1},
                {"SurfaceColorFill", "barLS", 2},
                {"Background", "barLS", 3},
                {"Lighting", "barWorld", 0}};
  for (const auto& owner : owners) {
    if (key == owner.key && isLoaded()) bar(owner.bar, owner.index).setState(key, buttonUp, true);
  }
}

void frmToolbar::takeForeground() {
  if (isLoaded()) desktop.setForegroundWindow(hWnd());
}

void frmToolbar::afterChoice(std::int16_t open) {
  const bool up = open != 0;
  openMarks = {up, up, up, up, up};
}

}  // namespace nerida

// Showing, hiding and hooking the toolbar, and its model button.
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

}  // namespace nerida

#include "control/toolbar_window_proc.h"

#include "control/library.h"
#include "core/popup_hiding.h"

namespace nerida {
namespace {

// The model cannot be told of its own failures here: the system waits for this procedure.
void ifPlaying(Library& library, void (ModelObject::*operation)()) {
  ModelObject model(library.state);
  if (!model.exists()) return;
  ignoringErrors([&] {
    if (model.AnimationState()) (model.*operation)();
  });
}

void hidePopups(Library& library) {
  for (int index = lineThicknessIndex; index < catalogIndex; ++index) {
    ignoringErrors([&] { hideShownForms(library.state, index, index); });
  }
}

void applicationLosesFocus(Library& library) {
  library.toolbar.clearLightingMark();
  if (library.about.isVisible()) {
    library.about.HideSelf();
    library.about.unload();
  }
  if (library.state.gFormShown[catalogIndex]) {
    library.browser.hideWindow();
    return;
  }
  // The bare window is hidden: its mark stays, and brings it back later.
  if (library.state.gFormShown[toolbarIndex]) library.toolbar.hideWindow();
  hidePopups(library);
  ifPlaying(library, &ModelObject::StopTimer);
}

void applicationGainsFocus(Library& library) {
  ignoringErrors([&] {
    if (library.state.gFormShown[catalogIndex]) {
      library.browser.showWindowTopmost();
    } else if (library.state.gFormShown[toolbarIndex]) {
      library.toolbar.showWindowTopmost();
    }
  });
  ifPlaying(library, &ModelObject::StartTimer);
}

}  // namespace

std::intptr_t ToolbarWindowProc(Library& library, const Message& message) {
  if (message.number == messageActivateApplication) {
    if (message.wParam == 0) {
      applicationLosesFocus(library);
    } else {
      applicationGainsFocus(library);
    }
    return 0;
  }
  // A change of resolution or colour depth has always been told as a shortage of memory.
  if (message.number == messageDisplayChange) library.messages.ShowLowMemoryMessage();
  return library.toolbar.callPrevious(message);
}

}  // namespace nerida

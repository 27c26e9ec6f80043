#include "host/app/in_place_editing.h"

#include <algorithm>

namespace nerida::host {
namespace {

class Busy {
 public:
  explicit Busy(bool& flag) : flag(flag) { flag = true; }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;
  ~Busy() { flag = false; }

 private:
  bool& flag;
};

RECT workArea(HWND window) {
  MONITORINFO monitor = {};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
  return monitor.rcWork;
}

// Zero would leave the choice to the toolbar, and its coordinates have 16 bits.
POINT usable(POINT corner) { return {std::clamp<LONG>(corner.x, 1, 32'767), std::clamp<LONG>(corner.y, 1, 32'767)}; }

// Moved no farther than it takes to have all of it on the screen.
POINT keptOnScreen(POINT corner, const RECT& toolbar, const RECT& screen) {
  const LONG lowest = screen.bottom - heightOf(toolbar), rightmost = screen.right - widthOf(toolbar);
  return usable(
      {std::max(screen.left, std::min(corner.x, rightmost)), std::max(screen.top, std::min(corner.y, lowest))});
}

}  // namespace

// Below the caption of the object.
POINT InPlaceEditing::corner(HWND document) const {
  const RECT frame = object.areaWithFrame();
  POINT place = {frame.left, frame.bottom + metrics.px(26)};
  ClientToScreen(document, &place);
  return usable(place);
}

void InPlaceEditing::showToolbar(HWND document) {
  // The toolbar reads the model's state when it is bound, so it has to be told when there is another model.
  if (object.takeModelChange() || !control.created()) control.bind(object.automation(), document);
  const POINT wanted = corner(document);
  toolbar = control.show(wanted);
  RECT shown;
  if (toolbar == nullptr || !GetWindowRect(toolbar, &shown)) return;
  const POINT better = keptOnScreen(wanted, shown, workArea(document));
  if (better.x != wanted.x || better.y != wanted.y) control.show(better);
  // The keyboard stays with the document, so that Escape leaves the object.
  SetActiveWindow(document);
}

void InPlaceEditing::begin(HWND document) {
  if (busy) return;
  const Busy now(busy);
  if (isActive && (control.toolbarVisible() || control.catalogVisible())) return;
  showToolbar(document);
  isActive = true;
}

void InPlaceEditing::end() {
  if (busy || !isActive) return;
  const Busy now(busy);
  isActive = false;
  suspendedAt.reset();
  control.hide();
}

void InPlaceEditing::catalogClosed(HWND document) {
  if (busy || !isActive || suspendedAt || control.catalogVisible()) return;
  const Busy now(busy);
  showToolbar(document);
}

void InPlaceEditing::modelReplaced(HWND document) {
  if (busy || !isActive || control.catalogVisible()) return;
  const Busy now(busy);
  showToolbar(document);
}

void InPlaceEditing::follow(HWND document) {
  const bool gone = IsIconic(document) != FALSE;
  if (busy || !isActive || gone == suspendedAt.has_value()) return;
  const Busy now(busy);
  if (gone) {
    RECT place;
    suspendedAt = GetWindowRect(toolbar, &place) != FALSE ? POINT{place.left, place.top} : corner(document);
    control.hide();
  } else {
    // The window is still on its way back from the task bar: its own place cannot be asked for yet.
    toolbar = control.show(usable(*suspendedAt));
    suspendedAt.reset();
    SetActiveWindow(document);
  }
}

void InPlaceEditing::close() noexcept {
  try {
    end();
  } catch (const ControlError&) {
    // Disposing takes the toolbar away in any case.
  }
  isActive = false;
  control.dispose();
}

}  // namespace nerida::host

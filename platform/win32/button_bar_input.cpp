// What the mouse, the keyboard and the system do to a button bar.
#include <windowsx.h>

#include <utility>

#include "platform/win32/button_bar.h"
#include "platform/win32/form_window.h"
#include "platform/win32/paint_scope.h"

namespace nerida {

LRESULT SystemButtonBar::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  if (tooltipsShown && message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) {
    offerTooltip(point);
    form().tooltips().relay(window(), message, wParam, lParam);
  }
  if (drawOnRequest(window(), message, wParam, [this](HDC target) { draw(target); })) return 0;
  switch (message) {
    case WM_ERASEBKGND:
      return TRUE;
    case WM_MOUSEMOVE:
      onMouseMove(point);
      return 0;
    case WM_MOUSELEAVE:
      onMouseLeave();
      return 0;
    case WM_LBUTTONDOWN:
      onButtonDown(point);
      return 0;
    case WM_LBUTTONUP:
      onButtonUp(point);
      return 0;
    case WM_CAPTURECHANGED:
      redraw(std::exchange(pressed, none));
      return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      onFocus(message == WM_SETFOCUS);
      return 0;
    case WM_KEYDOWN:
      if (form().handleNavigation(message, wParam, this) || onKey(wParam, lParam)) return 0;
      break;
    case WM_SHOWWINDOW:
      if (wParam == FALSE) onHidden();
      break;
    case WM_SIZE:
      for (BarLayout& each : layouts) measure(each);
      break;
    case WM_GETOBJECT:
      if (static_cast<LONG>(lParam) == OBJID_CLIENT) {
        if (accessible == nullptr) accessible = new PartsAccessible(*this, *this);
        return accessible->answer(wParam);
      }
      break;
    case WM_NCDESTROY:
      if (accessible != nullptr) std::exchange(accessible, nullptr)->disconnect();
      break;
    default:
      break;
  }
  return passOn(message, wParam, lParam);
}

int SystemButtonBar::buttonAt(POINT point) const {
  for (int i = 0; i < buttonCount(); ++i) {
    if (PtInRect(&button(i).area, point)) return i;
  }
  return none;
}

void SystemButtonBar::setHot(int index) {
  if (hot == index) return;
  redraw(std::exchange(hot, index));
  redraw(index);
  announce(EVENT_OBJECT_STATECHANGE, index);
}

// Below a pointer that rests there is another button.
void SystemButtonBar::findHot() {
  POINT pointer = {};
  GetCursorPos(&pointer);
  if (WindowFromPoint(pointer) != window()) return;
  ScreenToClient(window(), &pointer);
  const int under = buttonAt(pointer);
  setHot(isUsable(under) ? under : none);
}

void SystemButtonBar::onMouseMove(POINT point) {
  if (!tracking) {
    TRACKMOUSEEVENT request = {sizeof request, TME_LEAVE, window(), 0};
    tracking = TrackMouseEvent(&request) != FALSE;
  }
  const int under = buttonAt(point);
  // While a button is held, no other one answers to the pointer.
  const bool answers = isUsable(under) && (pressed == none || pressed == under);
  setHot(answers ? under : none);
  if (!form().pointerMoved(window(), point)) return;
  if (under != none) form().raise(buttonMouseMove, std::string(button(under).key));  // the handler may show others
}

// Before the tooltip window hears of the pointer, which may rest here at once.
void SystemButtonBar::offerTooltip(POINT point) {
  const int under = buttonAt(point);
  if (under == none || button(under).tooltip.empty()) return;
  form().tooltips().offer(window(), static_cast<unsigned>(under), button(under).area, button(under).tooltip);
}

void SystemButtonBar::onMouseLeave() {
  tracking = false;
  form().tooltips().pointerLeft();
  setHot(none);
}

// Nobody tells a window that is gone from under the pointer that the pointer left it.
void SystemButtonBar::onHidden() {
  cancelPress();
  onMouseLeave();
}

void SystemButtonBar::onButtonDown(POINT point) {
  const int under = buttonAt(point);
  form().setShowsFocus(false);
  if (pressed != none || !isUsable(under)) return;
  pressed = under;
  heldSince = static_cast<std::uint32_t>(GetMessageTime());
  hot = under;
  SetCapture(window());
  redraw(under);
  announce(EVENT_OBJECT_STATECHANGE, under);
}

void SystemButtonBar::onButtonUp(POINT point) {
  const int held = std::exchange(pressed, none);
  if (held == none) return;
  ReleaseCapture();
  redraw(held);
  announce(EVENT_OBJECT_STATECHANGE, held);
  if (held == buttonAt(point)) press(held, heldSince);
}

void SystemButtonBar::cancelPress() {
  if (pressed == none) return;
  redraw(std::exchange(pressed, none));
  if (GetCapture() == window()) ReleaseCapture();
}

bool SystemButtonBar::takesFocus() const {
  for (int i = 0; i < buttonCount(); ++i) {
    if (canPress(i)) return true;
  }
  return false;
}

// The next usable button on the way, round the ends; none when there is none.
int SystemButtonBar::nextUsable(int from, int direction) const {
  const int count = buttonCount();
  for (int step = 1; step <= count; ++step) {
    const int candidate = ((from + direction * step) % count + count) % count;
    if (canPress(candidate)) return candidate;
  }
  return none;
}

void SystemButtonBar::focusButton(int index) {
  redraw(std::exchange(focused, index));
  redraw(index);
  announce(EVENT_OBJECT_FOCUS, index);
}

bool SystemButtonBar::focusPart(int part) {
  focusButton(part);
  SetFocus(window());
  return true;
}

void SystemButtonBar::focusButton(const std::string& key) {
  for (int i = 0; i < buttonCount(); ++i) {
    if (button(i).key != key || !canPress(i)) continue;
    form().setShowsFocus(true);
    focusButton(i);
    SetFocus(window());
    return;
  }
}

// The form may want the arrow keys to lead elsewhere than along the bar.
bool SystemButtonBar::raiseArrowKey(WPARAM key) {
  if (!arrowKey || !isUsable(focused)) return false;
  const Key arrow = key == VK_LEFT ? Key::left : key == VK_RIGHT ? Key::right : key == VK_UP ? Key::up : Key::down;
  const std::string from = button(focused).key;
  return arrowKey(from, arrow);
}

void SystemButtonBar::stepFocus(int direction) {
  const int start = focused == none && direction < 0 ? 0 : focused;
  focusButton(nextUsable(start, direction));
}

void SystemButtonBar::onFocus(bool gained) {
  if (gained) form().raise(gotFocus);
  if (gained && !isUsable(focused)) {
    stepFocus(1);
  } else {
    redraw(focused);
  }
  if (gained) announce(EVENT_OBJECT_FOCUS, focused);
  if (!gained) form().raise(lostFocus);
}

bool SystemButtonBar::onKey(WPARAM key, LPARAM flags) {
  constexpr LPARAM wasDown = LPARAM{1} << 30;
  switch (key) {
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
      form().setShowsFocus(true);
      if (raiseArrowKey(key)) return true;
      stepFocus(key == VK_LEFT || key == VK_UP ? -1 : 1);
      return true;
    case VK_HOME:
    case VK_END:
      form().setShowsFocus(true);
      focusButton(key == VK_HOME ? nextUsable(none, 1) : nextUsable(0, -1));
      return true;
    case VK_SPACE:
    case VK_RETURN:
      if ((flags & wasDown) == 0 && canPress(focused)) press(focused);
      return true;
    default:
      return false;
  }
}

}  // namespace nerida

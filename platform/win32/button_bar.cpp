#include "platform/win32/button_bar.h"

#include <algorithm>

#include "platform/error.h"
#include "platform/win32/bitmap_files.h"
#include "platform/win32/form_window.h"
#include "platform/win32/text.h"

namespace nerida {

void SystemButtonBar::create() {
  createOwn(buttonBarClass, 0);
  if (isLaidOut) measureAll();
}

SystemButtonBar::~SystemButtonBar() {
  if (accessible != nullptr) accessible->disconnect();
}

void SystemButtonBar::setEnabled(bool enable) {
  if (enabled == enable) return;
  enabled = enable;
  cancelPress();
  if (!exists()) return;
  InvalidateRect(window(), nullptr, FALSE);
  NotifyWinEvent(EVENT_OBJECT_STATECHANGE, window(), OBJID_CLIENT, CHILDID_SELF);
}

void SystemButtonBar::setResourceFolder(const std::string& name) {
  folder = name;
  resources.reset();
}

void SystemButtonBar::setResourceFile(const std::string& fileName) {
  file = fileName;
  resources.reset();
}

BarLayout* SystemButtonBar::layoutNamed(const std::string& name) {
  const auto found = std::find_if(layouts.begin(), layouts.end(), [&](const BarLayout& l) { return l.name == name; });
  return found == layouts.end() ? nullptr : &*found;
}

void SystemButtonBar::openLayout(const std::string& name) {
  BarLayout* found = layoutNamed(name);
  if (found == nullptr) found = &layouts.emplace_back(BarLayout{name, {}});
  open = static_cast<int>(found - layouts.data());
}

void SystemButtonBar::addButton(const std::string& key, const std::string& bitmapSpec) {
  BarButton added;
  added.spec = parseBitmapSpec(bitmapSpec);
  added.key = key;
  if (open == none) throw Error(error::invalidCall);
  std::vector<BarButton>& buttons = layouts[static_cast<std::size_t>(open)].buttons;
  const bool isKnown = std::any_of(buttons.begin(), buttons.end(), [&](const BarButton& b) { return b.key == key; });
  if (isKnown) throw Error(error::invalidCall);
  buttons.push_back(std::move(added));
}

BarButton& SystemButtonBar::lastAdded() {
  if (open == none || layouts[static_cast<std::size_t>(open)].buttons.empty()) throw Error(error::invalidCall);
  return layouts[static_cast<std::size_t>(open)].buttons.back();
}

void SystemButtonBar::setTooltip(const std::string& text) { lastAdded().tooltip = wide(text); }

void SystemButtonBar::setCaption(const std::string& text) { lastAdded().caption = wide(text); }

void SystemButtonBar::setAccessibleName(const std::string& text) { lastAdded().accessibleName = wide(text); }

void SystemButtonBar::measureAll() {
  for (BarLayout& each : layouts) measure(each);
}

void SystemButtonBar::recomputeLayout() {
  isLaidOut = true;
  if (!exists()) return;
  measureAll();
  form().tooltips().forget(window());
  InvalidateRect(window(), nullptr, FALSE);
}

void SystemButtonBar::recomputeLayout(const std::string& keys) {
  if (open != none) {
    const auto rank = [list = ";" + keys + ";"](const BarButton& item) { return list.find(";" + item.key + ";"); };
    std::ranges::stable_sort(layouts[static_cast<std::size_t>(open)].buttons, {}, rank);
  }
  recomputeLayout();
}

void SystemButtonBar::showLayout(const std::string& name) {
  const BarLayout* found = layoutNamed(name);
  if (found == nullptr) throw Error(error::invalidCall);
  const int index = static_cast<int>(found - layouts.data());
  if (index == current) return;
  cancelPress();
  hot = none;
  focused = none;
  current = index;
  if (!exists()) return;
  form().tooltips().forget(window());
  InvalidateRect(window(), nullptr, FALSE);
  NotifyWinEvent(EVENT_OBJECT_REORDER, window(), OBJID_CLIENT, CHILDID_SELF);
  if (tracking) findHot();
  if (GetFocus() == window()) stepFocus(1);  // the keyboard stays here, on one of the new buttons
}

void SystemButtonBar::setState(const std::string& key, int state, bool redrawNow) {
  for (BarLayout& each : layouts) {
    for (std::size_t i = 0; i < each.buttons.size(); ++i) {
      BarButton& item = each.buttons[i];
      if (item.key != key || item.state == state) continue;
      item.state = state;
      if (each.name != layouts[static_cast<std::size_t>(std::max(current, 0))].name) continue;
      if (redrawNow) redraw(static_cast<int>(i));
      announce(EVENT_OBJECT_STATECHANGE, static_cast<int>(i));
    }
  }
}

void SystemButtonBar::setValue(const std::string& key, int value) {
  setState(key, value == 0 ? buttonUp : buttonDown, true);
}

int SystemButtonBar::buttonCount() const {
  return current == none ? 0 : static_cast<int>(layouts[static_cast<std::size_t>(current)].buttons.size());
}

const BarButton& SystemButtonBar::button(int index) const {
  return layouts[static_cast<std::size_t>(current)].buttons[static_cast<std::size_t>(index)];
}

std::wstring SystemButtonBar::buttonName(int index) const {
  const BarButton& item = button(index);
  if (!item.accessibleName.empty()) return item.accessibleName;
  if (!item.tooltip.empty()) return item.tooltip;
  return item.caption.empty() ? wide(item.key) : item.caption;
}

// Kind 4 is the greyed twin of another button: it is seen, but not used.
bool SystemButtonBar::isUsable(int index) const {
  return enabled && index >= 0 && index < buttonCount() && button(index).spec.kind != 4;
}

bool SystemButtonBar::canPress(int index) const {
  return isUsable(index) && isInSight(index) && IsWindowEnabled(form().window());
}

// Neither hidden nor folded away nor under a picture.
bool SystemButtonBar::isInSight(int index) const {
  if (!IsWindowVisible(window())) return false;
  const RECT& area = button(index).area;
  return isReachable({(area.left + area.right) / 2, (area.top + area.bottom) / 2});
}

DWORD SystemButtonBar::stateFlags() const {
  DWORD flags = 0;
  if (!IsWindowVisible(window())) flags |= STATE_SYSTEM_INVISIBLE;
  if (!enabled) flags |= STATE_SYSTEM_UNAVAILABLE;
  return flags;
}

DWORD SystemButtonBar::buttonStateFlags(int index) const {
  DWORD flags = 0;
  if (looksDown(index)) flags |= STATE_SYSTEM_PRESSED;
  if (index == hot) flags |= STATE_SYSTEM_HOTTRACKED;
  if (!isInSight(index)) flags |= STATE_SYSTEM_INVISIBLE;
  if (!canPress(index)) return flags | STATE_SYSTEM_UNAVAILABLE;
  flags |= STATE_SYSTEM_FOCUSABLE;
  if (index == focused && GetFocus() == window()) flags |= STATE_SYSTEM_FOCUSED;
  return flags;
}

bool SystemButtonBar::looksDown(int index) const {
  return button(index).state == buttonDown || (index == pressed && index == hot);
}

void SystemButtonBar::redraw(int index) {
  if (exists() && index >= 0 && index < buttonCount()) InvalidateRect(window(), &button(index).area, FALSE);
}

void SystemButtonBar::announce(DWORD event, int index) const {
  if (exists() && index != none) NotifyWinEvent(event, window(), OBJID_CLIENT, index + 1);
}

// A hand points before it presses, and what the form shows below the pointer is what is pressed.
void SystemButtonBar::doPart(int part) {
  form().raise(buttonMouseMove, std::string(button(part).key));
  if (canPress(part)) press(part);
}

void SystemButtonBar::press(int index, std::optional<std::uint32_t> began) {
  told = began;
  const std::string key = button(index).key;  // the handler may show another layout
  form().raise(buttonPress, key);
}

}  // namespace nerida

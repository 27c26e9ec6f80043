#include "platform/headless/button_bar.h"

#include <algorithm>
#include <stdexcept>

#include "platform/error.h"

namespace nerida::headless {

void Bar::setVisible(bool value) {
  visible = value;
  note(value ? "visible" : "hidden");
}

void Bar::setEnabled(bool value) {
  enabled = value;
  note(value ? "enabled" : "disabled");
}

void Bar::setResourceFolder(const std::string& folder) {
  resourceFolder = folder;
  note("folder " + folder);
}

void Bar::setShowsTooltips(bool shows) {
  showsTooltips = shows;
  note(shows ? "tooltips on" : "tooltips off");
}

void Bar::setResourceFile(const std::string& fileName) {
  resourceFile = fileName;
  note("file " + fileName);
}

void Bar::openLayout(const std::string& layoutName) {
  layouts[layoutName];
  openedLayout = layoutName;
  note("open " + layoutName);
}

void Bar::addButton(const std::string& key, const std::string& bitmapSpec) {
  const BitmapSpec bitmap = parseBitmapSpec(bitmapSpec);
  std::vector<Button>& buttons = opened().buttons;
  if (std::any_of(buttons.begin(), buttons.end(), [&](const Button& button) { return button.key == key; })) {
    throw Error(error::invalidCall);
  }
  buttons.push_back({.key = key, .bitmapSpec = bitmapSpec, .bitmap = bitmap});
  note("add " + key);
}

Bar::Layout& Bar::opened() {
  const auto found = layouts.find(openedLayout);
  if (found == layouts.end()) throw Error(error::invalidCall);
  return found->second;
}

Bar::Button& Bar::lastAdded() {
  std::vector<Button>& buttons = opened().buttons;
  if (buttons.empty()) throw Error(error::invalidCall);
  return buttons.back();
}

void Bar::setTooltip(const std::string& text) {
  lastAdded().tooltip = text;
  note("tooltip " + text);
}

void Bar::setCaption(const std::string& text) {
  lastAdded().caption = text;
  note("caption " + text);
}

void Bar::recomputeLayout() {
  for (auto& [layoutName, layout] : layouts) layout.laidOut = true;
  note("lay out");
}

void Bar::recomputeLayout(const std::string& keys) {
  std::vector<Button>& buttons = layouts.at(openedLayout).buttons;
  const auto rank = [&](const Button& button) { return (";" + keys + ";").find(";" + button.key + ";"); };
  std::ranges::stable_sort(buttons, {}, rank);
  layouts.at(openedLayout).laidOut = true;
  note("lay out " + keys);
}

void Bar::showLayout(const std::string& layoutName) {
  if (!layouts.contains(layoutName)) throw Error(error::invalidCall);
  shownLayout = layoutName;
  note("show " + layoutName);
}

void Bar::setState(const std::string& key, int state, bool) {
  if (Button* found = find(key)) found->state = state;
  note(key + " state " + std::to_string(state));
}

void Bar::setValue(const std::string& key, int value) {
  if (Button* found = find(key)) {
    found->value = value;
    found->state = value == 0 ? buttonUp : buttonDown;
  }
  note(key + " value " + std::to_string(value));
}

void Bar::hover(const std::string& key) {
  if (buttonMouseMove) buttonMouseMove(key);
}

bool Bar::shows(const std::string& key) const {
  const auto shown = layouts.find(shownLayout);
  return shown != layouts.end() &&
         std::ranges::any_of(shown->second.buttons, [&](const Button& button) { return button.key == key; });
}

void Bar::focusButton(const std::string& key) {
  if (!visible || !enabled || !shows(key)) return;
  focusedKey = key;
  focus.isShown = true;
  const bool came = focus.give(this, [this] { loseFocus(); });
  if (came && gotFocus) gotFocus();
}

void Bar::loseFocus() {
  focus.forget(this);
  focusedKey.clear();
  if (lostFocus) lostFocus();
}

void Bar::key(Key pressed) {
  focus.isShown = true;
  if (pressed == Key::choose) {
    press(focusedKey);
    return;
  }
  if (arrowKey && arrowKey(focusedKey, pressed)) return;
  const std::vector<std::string> all = keys();
  const auto at = static_cast<std::size_t>(std::ranges::find(all, focusedKey) - all.begin());
  const bool back = pressed == Key::left || pressed == Key::up;
  focusedKey = all[(at + (back ? all.size() - 1 : 1)) % all.size()];
}

Bar::Button* Bar::find(const std::string& key) {
  for (auto& [layoutName, layout] : layouts) {
    for (Button& candidate : layout.buttons) {
      if (candidate.key == key) return &candidate;
    }
  }
  return nullptr;
}

void Bar::press(const std::string& key) {
  const std::vector<Button>& shown = layouts.at(shownLayout).buttons;
  const bool there = std::any_of(shown.begin(), shown.end(), [&](const Button& b) { return b.key == key; });
  if (!there || !visible || !enabled) throw std::logic_error(name + " shows no button " + key);
  if (buttonPress) buttonPress(key);
}

const Bar::Button& Bar::button(const std::string& key) const {
  const Button* found = const_cast<Bar*>(this)->find(key);
  if (!found) throw std::logic_error(name + " has no button " + key);
  return *found;
}

std::vector<std::string> Bar::keys() const {
  std::vector<std::string> result;
  for (const Button& candidate : layouts.at(shownLayout).buttons) result.push_back(candidate.key);
  return result;
}

}  // namespace nerida::headless

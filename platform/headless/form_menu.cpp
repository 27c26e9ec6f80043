#include "platform/headless/form_menu.h"

#include "platform/error.h"

namespace nerida::headless {

void MenuBar::note(const MenuEntry& entry, const std::string& what) {
  transcript.add(entry.name + "(" + std::to_string(entry.index) + "): " + what);
}

void MenuBar::setCaption(const std::string& name, int index, const std::string& text) {
  entries.setCaption(name, index, text);
  note(entries.at(name, index), "caption " + text);
}

void MenuBar::setVisible(const std::string& name, int index, bool visible) {
  MenuEntry& entry = entries.at(name, index);
  entry.visible = visible;
  note(entry, visible ? "visible" : "hidden");
}

void MenuBar::setEnabled(const std::string& name, int index, bool enabled) {
  MenuEntry& entry = entries.at(name, index);
  entry.enabled = enabled;
  note(entry, enabled ? "enabled" : "disabled");
}

void MenuBar::load(const std::string& name, int index) {
  entries.load(name, index);
  note(entries.at(name, index), "load");
}

bool MenuBar::choose(const std::string& name, int index) {
  if (!exists(name, index)) return false;
  const MenuEntry& chosen = entries.at(name, index);
  for (const MenuEntry* entry = &chosen; entry != &entries.bar(); entry = entry->parent) {
    if (!entry->isUsable()) return false;
  }
  if (!chosen.entries.empty()) return false;
  if (click) click(name, index);
  return true;
}

std::vector<std::string> MenuBar::inSight(const std::string& name) const {
  std::vector<std::string> captions;
  for (const auto& entry : entries.at(name, 0).parent->entries) {
    if (entry->name == name && entry->isInSight()) captions.push_back(entry->caption);
  }
  return captions;
}

bool MenuBar::exists(const std::string& name, int index) const {
  try {
    (void)entries.at(name, index);
  } catch (const Error&) {
    return false;
  }
  return true;
}

}  // namespace nerida::headless

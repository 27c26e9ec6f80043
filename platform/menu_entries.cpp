#include "platform/menu_entries.h"

#include <algorithm>

#include "platform/error.h"

namespace nerida {

bool MenuEntry::hasEntryInSight() const {
  return std::ranges::any_of(entries, [](const auto& entry) { return entry->isInSight(); });
}

bool MenuEntry::isUsable() const {
  return isInSight() && !isSeparator() && enabled && (entries.empty() || hasEntryInSight());
}

MenuEntries::MenuEntries(std::span<const MenuLayout> rows) {
  std::vector<MenuEntry*> open{&root};  // the entry that the next row of each level belongs to
  for (const MenuLayout& row : rows) {
    open.resize(static_cast<std::size_t>(row.level) + 1);
    MenuEntry* parent = open.back();
    parent->entries.push_back(std::make_unique<MenuEntry>(
        MenuEntry{row.name, row.index, row.caption, true, row.visible, row.enabled, parent}));
    MenuEntry* added = parent->entries.back().get();
    places[{row.name, row.index}] = added;
    open.push_back(added);
  }
}

MenuEntry& MenuEntries::at(const std::string& name, int index) const {
  const auto found = places.find({name, index});
  if (found == places.end()) throw Error(error::noSuchElement);
  return *found->second;
}

void MenuEntries::setCaption(const std::string& name, int index, const std::string& text) {
  MenuEntry& entry = at(name, index);
  entry.caption = text;
  entry.isDesigned = false;
}

void MenuEntries::load(const std::string& name, int index) {
  const MenuEntry& first = at(name, 0);
  if (places.contains({name, index})) throw Error(error::alreadyLoaded);
  auto& siblings = first.parent->entries;
  const auto last =
      std::find_if(siblings.rbegin(), siblings.rend(), [&](const auto& entry) { return entry->name == name; });
  auto added = std::make_unique<MenuEntry>(
      MenuEntry{name, index, first.caption, first.isDesigned, false, first.enabled, first.parent});
  places[{name, index}] = added.get();
  siblings.insert(last.base(), std::move(added));
}

}  // namespace nerida

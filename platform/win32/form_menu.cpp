#include "platform/win32/form_menu.h"

#include <algorithm>

#include "platform/error.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

constexpr std::size_t longestCaption = 80;  // a wider menu would cover the screen, or reach beyond it
constexpr wchar_t ellipsis = L'\x2026';
constexpr bool isFirstOfPair(wchar_t unit) { return (unit & 0xFC00) == 0xD800; }

std::wstring shortened(std::wstring caption) {
  if (caption.size() <= longestCaption) return caption;
  caption.resize(longestCaption - 1);
  if (isFirstOfPair(caption.back())) caption.pop_back();
  return caption + ellipsis;
}

// A caption that the program set is shown as it is; the system would take marks and columns from it.
std::wstring shownCaption(const MenuEntry& entry) {
  std::wstring caption = wide(entry.caption);
  if (entry.isDesigned) return caption;
  std::wstring shown;
  for (const wchar_t character : shortened(caption)) {
    shown += character < L' ' ? L' ' : character;
    if (character == L'&') shown += L'&';
  }
  return shown;
}

void setMenuEntry(HMENU menu, const MenuEntry& entry) {
  MENUINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = MIM_MENUDATA;
  info.dwMenuData = reinterpret_cast<ULONG_PTR>(&entry);
  SetMenuInfo(menu, &info);
}

const MenuEntry* menuEntry(HMENU menu) {
  MENUINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = MIM_MENUDATA;
  return GetMenuInfo(menu, &info) ? reinterpret_cast<const MenuEntry*>(info.dwMenuData) : nullptr;
}

// A menu without anything in it would not open, and so never be filled.
HMENU createUnfilledMenu(const MenuEntry& entry) {
  const HMENU menu = CreatePopupMenu();
  if (menu == nullptr) throw Error(error::outOfMemory);
  setMenuEntry(menu, entry);
  AppendMenuW(menu, MF_STRING | MF_GRAYED, 0, L"");
  return menu;
}

void clear(HMENU menu) {
  while (DeleteMenu(menu, 0, MF_BYPOSITION)) {
  }
}

}  // namespace

void SystemFormMenu::setCaption(const std::string& name, int index, const std::string& text) {
  entries.setCaption(name, index, text);
  updateBar();
}

void SystemFormMenu::setVisible(const std::string& name, int index, bool visible) {
  entries.at(name, index).visible = visible;
  updateBar();
}

void SystemFormMenu::setEnabled(const std::string& name, int index, bool enabled) {
  entries.at(name, index).enabled = enabled;
  updateBar();
}

HMENU SystemFormMenu::createBar() {
  if (entries.isEmpty()) return nullptr;
  UniqueMenu created(CreateMenu());
  if (!created) throw Error(error::outOfMemory);
  MENUINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = MIM_STYLE;
  info.dwStyle = MNS_NOTIFYBYPOS;
  SetMenuInfo(created.get(), &info);
  setMenuEntry(created.get(), entries.bar());
  for (const auto& entry : entries.bar().entries) append(created.get(), *entry);
  return bar = created.release();
}

// A menu in which nothing can be seen is grey in the bar.
void SystemFormMenu::updateBar() {
  if (bar == nullptr || !IsWindow(owner)) return;
  UINT position = 0;
  bool changed = false;
  for (const auto& entry : entries.bar().entries) {
    if (!entry->isInSight()) continue;
    const UINT state = entry->isUsable() ? MF_ENABLED : MF_GRAYED;
    changed |= (GetMenuState(bar, position, MF_BYPOSITION) & MF_GRAYED) != state;
    EnableMenuItem(bar, position, MF_BYPOSITION | state);
    ++position;
  }
  if (changed) DrawMenuBar(owner);
}

void SystemFormMenu::append(HMENU menu, const MenuEntry& entry) {
  if (!entry.isInSight()) return;
  if (entry.isSeparator()) {
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    return;
  }
  const UINT state = entry.isUsable() ? MF_ENABLED : MF_GRAYED;
  const std::wstring caption = shownCaption(entry);
  if (entry.entries.empty()) {
    AppendMenuW(menu, MF_STRING | state, 1, caption.c_str());
  } else {
    AppendMenuW(menu, MF_POPUP | state, reinterpret_cast<UINT_PTR>(createUnfilledMenu(entry)), caption.c_str());
  }
}

void SystemFormMenu::fill(HMENU opened) {
  const MenuEntry* entry = menuEntry(opened);
  if (entry == nullptr || opened == bar) return;
  clear(opened);
  for (const auto& child : entry->entries) append(opened, *child);
}

const MenuEntry* SystemFormMenu::entryAt(HMENU menu, UINT position) const {
  const MenuEntry* parent = menuEntry(menu);
  if (parent == nullptr) return nullptr;
  for (const auto& entry : parent->entries) {
    if (entry->isInSight() && position-- == 0) return entry.get();
  }
  return nullptr;
}

}  // namespace nerida

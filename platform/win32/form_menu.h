#pragma once

#include <windows.h>

#include <string>

#include "platform/form_menu.h"
#include "platform/menu_entries.h"
#include "platform/win32/handles.h"

namespace nerida {

// A menu bar. What stands in a menu is put there when a user opens it: the entries may be many, and change often.
class SystemFormMenu final : public FormMenu {
 public:
  explicit SystemFormMenu(std::span<const MenuLayout> rows) : entries(rows) {}

  std::string caption(const std::string& name, int index) const override { return entries.at(name, index).caption; }
  void setCaption(const std::string& name, int index, const std::string& text) override;
  void setVisible(const std::string& name, int index, bool visible) override;
  void setEnabled(const std::string& name, int index, bool enabled) override;
  void load(const std::string& name, int index) override { entries.load(name, index); }

  const MenuEntries& content() const { return entries; }
  bool isEmpty() const { return entries.isEmpty(); }
  // The bar of a window that is about to be made, which destroys it; null when there are no entries.
  HMENU createBar();
  void attach(HWND window) { owner = window; }
  // A menu of the bar is about to be seen.
  void fill(HMENU opened);
  // The entry at a position of one of the menus; null for none.
  const MenuEntry* entryAt(HMENU menu, UINT position) const;

 private:
  void updateBar();
  static void append(HMENU menu, const MenuEntry& entry);

  MenuEntries entries;
  HMENU bar = nullptr;  // the window's
  HWND owner = nullptr;
};

}  // namespace nerida

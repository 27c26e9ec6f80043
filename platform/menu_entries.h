#pragma once

#include <map>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/form_layout.h"

namespace nerida {

struct MenuEntry {
  std::string name;
  int index = 0;
  std::string caption = {};
  bool isDesigned = true;  // the caption is the layout's, and may mark a letter or be a separator
  bool visible = true;
  bool enabled = true;
  MenuEntry* parent = nullptr;
  std::vector<std::unique_ptr<MenuEntry>> entries = {};

  // Whether it takes a place in the menu.
  bool isInSight() const { return visible && !caption.empty(); }
  bool isSeparator() const { return isDesigned && caption == "-"; }
  // Whether a user can choose or open it, if its own parents can be opened.
  bool isUsable() const;
  bool hasEntryInSight() const;
};

// The entries of a form's menu bar, whichever side shows them.
class MenuEntries {
 public:
  explicit MenuEntries(std::span<const MenuLayout> rows);

  const MenuEntry& bar() const { return root; }
  bool isEmpty() const { return root.entries.empty(); }
  // Error 340 when there is no such element.
  MenuEntry& at(const std::string& name, int index) const;
  void setCaption(const std::string& name, int index, const std::string& text);
  // A hidden copy of element 0, below the array's others. Error 360 when it exists.
  void load(const std::string& name, int index);

 private:
  MenuEntry root{"", 0};
  std::map<std::pair<std::string, int>, MenuEntry*> places;
};

}  // namespace nerida

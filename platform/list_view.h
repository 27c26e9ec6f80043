#pragma once

#include <functional>
#include <span>
#include <string>

#include "platform/control.h"

namespace nerida {

struct ListItem {
  std::string text;
  std::string tag;    // the program's own text about the item
  int smallIcon = 0;  // place in the list's small icons, from 1; 0 is no icon
  friend bool operator==(const ListItem&, const ListItem&) = default;
};

// A list of items with small icons, one below the other. Adding an item costs the same however many there are.
class ListView : public Control {
 public:
  // The small icons, as bitmap specs of a resource file in a folder. One that is missing is empty.
  virtual void setSmallIcons(const std::string& folder, const std::string& file,
                             std::span<const char* const> specs) = 0;
  virtual void clear() = 0;  // raises nothing, and leaves no item selected
  virtual void add(ListItem item) = 0;
  virtual void setTag(int index, const std::string& tag) = 0;  // error 9 outside the list
  virtual int count() const = 0;
  virtual ListItem item(int index) const = 0;  // error 9 outside the list
  virtual int selected() const = 0;            // -1 for none
  // Selects an item and brings it into sight. Raises nothing. Error 9 outside the list.
  virtual void select(int index) = 0;
  virtual void refresh() = 0;

  // The user clicked an item, also one that was selected already, or went to it with the keyboard: by the arrows, or by
  // typing how its text begins.
  std::function<void(int index)> itemClick;
};

}  // namespace nerida

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/headless/controls.h"
#include "platform/list_view.h"

namespace nerida::headless {

// A list whose items can be read and clicked. Adding is written down once for a row of items.
class Items : public Basic<ListView> {
 public:
  using Basic::Basic;
  void setSmallIcons(const std::string& folder, const std::string& file, std::span<const char* const> specs) override;
  void clear() override;
  void add(ListItem item) override;
  void setTag(int index, const std::string& tag) override;
  int count() const override { return static_cast<int>(entries.size()); }
  ListItem item(int index) const override;
  int selected() const override { return selection; }
  void select(int index) override;
  void refresh() override { note("refresh"); }

  // The user clicks an item.
  void click(int index);
  // The user types the beginning of an item's text; the next one that begins so is gone to.
  void type(const std::string& beginning);

  std::vector<ListItem> entries;
  std::vector<std::string> smallIcons;
  // Runs before an item is added.
  std::function<void(const ListItem&)> beforeAdd;

 private:
  int selection = -1;
};

}  // namespace nerida::headless

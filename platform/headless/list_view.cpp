#include "platform/headless/list_view.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

#include "platform/error.h"

namespace nerida::headless {

void Items::setSmallIcons(const std::string&, const std::string&, std::span<const char* const> specs) {
  smallIcons.assign(specs.begin(), specs.end());
}

void Items::clear() {
  entries.clear();
  selection = -1;
  note("clear");
}

void Items::add(ListItem item) {
  if (beforeAdd) beforeAdd(item);
  if (entries.empty()) note("add");
  entries.push_back(std::move(item));
}

void Items::setTag(int index, const std::string& tag) {
  if (index < 0 || index >= count()) throw Error(error::subscriptOutOfRange);
  entries[static_cast<std::size_t>(index)].tag = tag;
}

ListItem Items::item(int index) const {
  if (index < 0 || index >= count()) throw Error(error::subscriptOutOfRange);
  return entries[static_cast<std::size_t>(index)];
}

void Items::select(int index) {
  if (index < 0 || index >= count()) throw Error(error::subscriptOutOfRange);
  selection = index;
  note("select " + std::to_string(index));
}

void Items::click(int index) {
  if (index < 0 || index >= count()) throw std::logic_error(name + " has no item " + std::to_string(index));
  selection = index;
  if (itemClick) itemClick(index);
}

void Items::type(const std::string& beginning) {
  const auto isSame = [](unsigned char one, unsigned char other) { return std::tolower(one) == std::tolower(other); };
  const auto begins = [&](const std::string& text) {
    return std::ranges::equal(text.substr(0, beginning.size()), beginning, isSame);
  };
  for (int step = 1; step <= count(); ++step) {
    const int index = (selection + step) % count();
    if (!begins(item(index).text)) continue;
    if (index != selection) click(index);
    return;
  }
}

}  // namespace nerida::headless

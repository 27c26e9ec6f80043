#include "catalog/recent_searches.h"

#include <algorithm>
#include <utility>

#include "catalog/browser_texts.h"

namespace nerida {
namespace {

constexpr const char* section = "Browser";
constexpr const char* menuName = "mnuSearch";
constexpr std::size_t mostSearches = 5;

std::string key(std::size_t index) { return "Search" + std::to_string(index); }

int element(std::size_t index) { return static_cast<int>(index); }

}  // namespace

void RecentSearches::load(Settings& settings, FormMenu& menu) {
  texts = {previousSearch};
  const std::string newest = settings.read(section, key(0), "");
  if (!newest.empty()) {
    texts[0] = newest;
    menu.setCaption(menuName, 0, newest);
    menu.setVisible(menuName, 0, true);
  }
  for (std::size_t i = 1;; ++i) {
    const std::string text = settings.read(section, key(i), "");
    if (text.empty()) return;
    menu.load(menuName, element(i));
    texts.push_back(text);
    menu.setCaption(menuName, element(i), text);
    menu.setVisible(menuName, element(i), true);
  }
}

void RecentSearches::show(FormMenu& menu, std::size_t index) const {
  menu.setCaption(menuName, element(index), texts[index]);
}

void RecentSearches::record(const std::string& text, FormMenu& menu) {
  if (text.empty()) return;
  const auto known = static_cast<std::size_t>(std::ranges::find(texts, text) - texts.begin());
  if (known < texts.size()) {
    texts[known] = std::exchange(texts[0], text);
    show(menu, known);
    show(menu, 0);
    return;
  }
  if (texts.size() < mostSearches) {
    menu.load(menuName, element(texts.size()));
    texts.emplace_back();
  }
  for (std::size_t i = texts.size() - 1; i > 0; --i) {
    texts[i] = texts[i - 1];
    show(menu, i);
    menu.setVisible(menuName, element(i), true);
  }
  texts[0] = text;
  show(menu, 0);
  menu.setVisible(menuName, 0, true);
}

void RecentSearches::save(Settings& settings) const {
  std::size_t stored = 0;
  for (const std::string& text : texts) {
    if (text.empty() || text == previousSearch) continue;
    settings.write(section, key(stored), text);
    ++stored;
  }
}

}  // namespace nerida

#pragma once

#include <string>
#include <vector>

#include "platform/form_menu.h"
#include "platform/settings.h"

namespace nerida {

// The texts searched for lately, the newest first, and the entries of the menu mnuSearch that show them: text and entry
// of an index always belong together. At most five are kept; more may have been stored by hand.
class RecentSearches {
 public:
  // Reads the stored texts up to the first gap and makes an entry for each. Raises what the menu raises.
  void load(Settings& settings, FormMenu& menu);
  // Puts a text in front. One that is there already changes places with the newest.
  void record(const std::string& text, FormMenu& menu);
  // Stores the texts. What an earlier save left behind them stays stored. Error 5 when the store cannot be written.
  void save(Settings& settings) const;

 private:
  void show(FormMenu& menu, std::size_t index) const;

  std::vector<std::string> texts;
};

}  // namespace nerida

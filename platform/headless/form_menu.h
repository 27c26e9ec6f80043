#pragma once

#include <string>
#include <vector>

#include "platform/form_menu.h"
#include "platform/headless/transcript.h"
#include "platform/menu_entries.h"

namespace nerida::headless {

// A menu bar whose entries can be read and chosen.
class MenuBar : public FormMenu {
 public:
  MenuBar(Transcript& transcript, std::span<const MenuLayout> rows) : entries(rows), transcript(transcript) {}

  std::string caption(const std::string& name, int index) const override { return entries.at(name, index).caption; }
  void setCaption(const std::string& name, int index, const std::string& text) override;
  void setVisible(const std::string& name, int index, bool visible) override;
  void setEnabled(const std::string& name, int index, bool enabled) override;
  void load(const std::string& name, int index) override;

  // The user chooses an entry. False when the user cannot: it is not in sight, grey, or only opens others.
  bool choose(const std::string& name, int index = 0);
  // The captions of an array's elements that are in sight.
  std::vector<std::string> inSight(const std::string& name) const;
  bool exists(const std::string& name, int index) const;

  MenuEntries entries;

 private:
  void note(const MenuEntry& entry, const std::string& what);

  Transcript& transcript;
};

}  // namespace nerida::headless

#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/bitmap_spec.h"
#include "platform/button_bar.h"
#include "platform/headless/keyboard_focus.h"
#include "platform/headless/transcript.h"

namespace nerida::headless {

// A bar whose buttons can be read and pressed.
class Bar : public ButtonBar {
 public:
  struct Button {
    std::string key;
    std::string bitmapSpec;
    BitmapSpec bitmap = {};
    std::string tooltip = {};
    std::string caption = {};
    std::string accessibleName = {};
    int state = buttonUp;
    int value = 0;
  };
  struct Layout {
    std::vector<Button> buttons;
    bool laidOut = false;
  };

  Bar(Transcript& transcript, std::string name, Bounds bounds, KeyboardFocus& focus)
      : name(std::move(name)), transcript(transcript), place(bounds), focus(focus) {}

  void setVisible(bool visible) override;
  bool isVisible() const override { return visible; }
  Bounds bounds() const override { return place; }
  void setEnabled(bool value) override;
  void setResourceFolder(const std::string& folder) override;
  void setShowsTooltips(bool shows) override;
  void setResourceFile(const std::string& fileName) override;
  void openLayout(const std::string& layoutName) override;
  void addButton(const std::string& key, const std::string& bitmapSpec) override;
  void setTooltip(const std::string& text) override;
  void setCaption(const std::string& text) override;
  void setAccessibleName(const std::string& text) override { lastAdded().accessibleName = text; }
  void recomputeLayout() override;
  void recomputeLayout(const std::string& keys) override;
  void showLayout(const std::string& layoutName) override;
  void setState(const std::string& key, int state, bool redraw) override;
  void setValue(const std::string& key, int value) override;
  std::optional<std::uint32_t> pressBegan() const override { return clickedAt; }
  void focusButton(const std::string& key) override;

  // The pointer moves over a button.
  void hover(const std::string& key);
  void loseFocus();
  // A key in the button that has the focus: what the form does not use of the arrows moves along the bar.
  void key(Key pressed);
  // The user presses a button of the layout that is shown. Pressing what is not there is a mistake of the test.
  void press(const std::string& key);
  const Button& button(const std::string& key) const;
  std::vector<std::string> keys() const;

  std::string name;  // with its index: "barLS(2)"
  std::map<std::string, Layout> layouts;
  std::string shownLayout;
  std::string resourceFolder;
  std::string resourceFile;
  std::optional<std::uint32_t> clickedAt;  // where the user presses with the mouse
  std::string focusedKey;
  bool enabled = false;
  bool showsTooltips = false;

 private:
  void note(const std::string& what) { transcript.add(name + ": " + what); }
  Layout& opened();
  Button& lastAdded();
  Button* find(const std::string& key);
  bool shows(const std::string& key) const;

  Transcript& transcript;
  Bounds place;
  KeyboardFocus& focus;
  std::string openedLayout;
  bool visible = true;
};

}  // namespace nerida::headless

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/bitmap_resources.h"
#include "platform/button_bar.h"
#include "platform/win32/native_control.h"
#include "platform/win32/pixels.h"

namespace nerida {

class BarAccessible;

struct BarButton {
  std::string key;
  BitmapSpec spec;
  std::wstring caption;
  std::wstring tooltip;
  int state = buttonUp;
  RECT area = {};
  std::optional<Picture> picture;  // empty also when the resource file has none
  bool pictureSought = false;
};

struct BarLayout {
  std::string name;
  std::vector<BarButton> buttons;
};

// One window that draws all its buttons itself. Buttons are named by their index in the shown layout.
class SystemButtonBar final : public ControlOf<ButtonBar> {
 public:
  SystemButtonBar(FormWindow& owner, const ControlLayout& row);
  ~SystemButtonBar() override;

  void setEnabled(bool enabled) override;
  void setResourceFolder(const std::string& folder) override;
  void setShowsTooltips(bool shows) override { tooltipsShown = shows; }
  void setResourceFile(const std::string& fileName) override;
  void openLayout(const std::string& name) override;
  void addButton(const std::string& key, const std::string& bitmapSpec) override;
  void setTooltip(const std::string& text) override;
  void setCaption(const std::string& text) override;
  void recomputeLayout() override;
  void showLayout(const std::string& name) override;
  void setState(const std::string& key, int state, bool redraw) override;

  // For assistive tools.
  int buttonCount() const;
  const BarButton& button(int index) const;
  std::wstring buttonName(int index) const;  // the tooltip, else the caption, else the key
  DWORD stateFlags() const;                  // of the bar as a whole
  DWORD buttonStateFlags(int index) const;
  bool canPress(int index) const;  // usable, in sight and not waiting for a modal window
  int buttonAt(POINT point) const;
  int focusedButton() const { return focused; }
  void press(int index);
  void focusButton(int index);

  static constexpr int none = -1;

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  bool takesFocus() const override;
  void onHidden() override;

  BarLayout* layoutNamed(const std::string& name);
  BarButton& lastAdded();
  bool isUsable(int index) const;
  bool isInSight(int index) const;
  void redraw(int index);
  void announce(DWORD event, int index) const;

  // Mouse and keyboard.
  void offerTooltip(POINT point);
  void onMouseMove(POINT point);
  void onMouseLeave();
  void onButtonDown(POINT point);
  void onButtonUp(POINT point);
  void cancelPress();
  void setHot(int index);
  bool onKey(WPARAM key, LPARAM flags);
  void stepFocus(int direction);
  int nextUsable(int from, int direction) const;
  void onFocus(bool gained);

  // Drawing.
  void paint(HDC target);
  void paintButton(PixelCanvas& canvas, int index);
  void paintCaption(HDC dc, int index);
  POINT pictureOrigin(const BarButton& item, int index) const;
  const Picture* pictureOf(BarButton& item);
  void measure(BarLayout& measured);
  bool looksDown(int index) const;

  std::vector<BarLayout> layouts;
  int open = none;
  int current = none;
  std::string folder;
  std::string file;
  std::shared_ptr<const BitmapResources> resources;
  bool enabled = true;
  bool tooltipsShown = false;
  bool tracking = false;
  int hot = none;
  int pressed = none;
  int focused = none;
  BarAccessible* accessible = nullptr;  // holds a reference while it is not null
};

}  // namespace nerida

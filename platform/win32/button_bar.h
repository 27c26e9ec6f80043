#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/bitmap_resources.h"
#include "platform/button_bar.h"
#include "platform/win32/accessible_parts.h"
#include "platform/win32/native_control.h"
#include "platform/win32/pixels.h"

namespace nerida {

struct BarButton {
  std::string key;
  BitmapSpec spec;
  std::wstring caption;
  std::wstring tooltip;
  std::wstring accessibleName;
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
class SystemButtonBar final : public ControlOf<ButtonBar>, private ControlParts {
 public:
  using ControlOf::ControlOf;
  void create() override;
  ~SystemButtonBar() override;

  void setEnabled(bool enabled) override;
  void setResourceFolder(const std::string& folder) override;
  void setShowsTooltips(bool shows) override { tooltipsShown = shows; }
  void setResourceFile(const std::string& fileName) override;
  void openLayout(const std::string& name) override;
  void addButton(const std::string& key, const std::string& bitmapSpec) override;
  void setTooltip(const std::string& text) override;
  void setCaption(const std::string& text) override;
  void setAccessibleName(const std::string& text) override;
  void focusButton(const std::string& key) override;
  void recomputeLayout() override;
  void recomputeLayout(const std::string& keys) override;
  void showLayout(const std::string& name) override;
  void setState(const std::string& key, int state, bool redraw) override;
  void setValue(const std::string& key, int value) override;
  std::optional<std::uint32_t> pressBegan() const override { return told; }

  int buttonCount() const;
  const BarButton& button(int index) const;
  std::wstring buttonName(int index) const;  // the accessible name, else the tooltip, the caption, the key
  DWORD stateFlags() const;                  // of the bar as a whole
  DWORD buttonStateFlags(int index) const;
  bool canPress(int index) const;  // usable, in sight and not waiting for a modal window
  int buttonAt(POINT point) const;
  void press(int index, std::optional<std::uint32_t> began = std::nullopt);
  void focusButton(int index);

  static constexpr int none = -1;

 private:
  std::wstring wholeName() const override { return accessibleName(); }
  LONG wholeRole() const override { return ROLE_SYSTEM_TOOLBAR; }
  int partCount() const override { return buttonCount(); }
  std::wstring partName(int part) const override { return buttonName(part); }
  DWORD wholeStateFlags() const override { return stateFlags(); }
  DWORD partStateFlags(int part) const override { return buttonStateFlags(part); }
  RECT partArea(int part) const override { return button(part).area; }
  int partAt(POINT point) const override { return buttonAt(point); }
  int focusedPart() const override { return focused; }
  bool canPressPart(int part) const override { return canPress(part); }
  bool focusPart(int part) override;
  void doPart(int part) override;

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
  void findHot();
  bool onKey(WPARAM key, LPARAM flags);
  bool raiseArrowKey(WPARAM key);
  void stepFocus(int direction);
  int nextUsable(int from, int direction) const;
  void onFocus(bool gained);

  // Drawing.
  void draw(HDC target) override;
  void paintButton(PixelCanvas& canvas, int index);
  void paintCaption(HDC dc, int index);
  POINT pictureOrigin(const BarButton& item, int index) const;
  const Picture* pictureOf(BarButton& item);
  void measureAll();
  void measure(BarLayout& measured);
  void measureRow(BarLayout& measured, SIZE bar);
  bool looksDown(int index) const;

  std::vector<BarLayout> layouts;
  int open = none;
  int current = none;
  std::string folder;
  std::string file;
  std::shared_ptr<const BitmapResources> resources;
  bool isLaidOut = false;
  bool enabled = true;
  bool tooltipsShown = false;
  bool tracking = false;
  int hot = none;
  int pressed = none;
  int focused = none;
  std::uint32_t heldSince = 0;
  std::optional<std::uint32_t> told;
  PartsAccessible* accessible = nullptr;  // holds a reference while it is not null
};

}  // namespace nerida

#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/control.h"

namespace nerida {

// A bar of image buttons, drawn out of a bitmap resource file. It holds named layouts ("Default", "Enabled", …) and
// shows one of them at a time.
class ButtonBar : public Control {
 public:
  // The settings that are made before buttons are added.
  virtual void setEnabled(bool enabled) = 0;
  virtual void setResourceFolder(const std::string& folder) = 0;
  virtual void setShowsTooltips(bool shows) = 0;
  virtual void setResourceFile(const std::string& fileName) = 0;

  // Opens a layout for adding buttons, creating it if the bar has none of that name.
  virtual void openLayout(const std::string& name) = 0;
  // Adds a button to the open layout: key, and bitmap spec "kind, file, left, top[, width, height]" (pixels at 96 dpi;
  // blanks do not count; width and height default to 23 by 22). A spec whose picture is missing gives a button
  // without one. Error 5 when it names no kind or the key is already in the layout.
  virtual void addButton(const std::string& key, const std::string& bitmapSpec) = 0;
  // Of the button just added.
  virtual void setTooltip(const std::string& text) = 0;
  virtual void setCaption(const std::string& text) = 0;
  // What assistive tools call it; without one it is its tooltip, else its caption, else its key.
  virtual void setAccessibleName(const std::string& text) = 0;
  virtual void recomputeLayout() = 0;
  // Like recomputeLayout, with the buttons in the order of a list of keys joined by ";".
  virtual void recomputeLayout(const std::string& keys) = 0;
  // Error 5 when the bar has no layout of that name.
  virtual void showLayout(const std::string& name) = 0;

  // 0 up, 2 down (latched); searched in every layout. An unknown key changes nothing. Never raises a press.
  virtual void setState(const std::string& key, int state, bool redraw) = 0;

  // A button's value, 0 or 1: whether it is the chosen one of its bar. It is shown like the state 2, and setting it to
  // 0 raises the button. An unknown key changes nothing.
  virtual void setValue(const std::string& key, int value) = 0;

  // Inside buttonPress: when the mouse went down for it, by the desktop's clock; nothing if it was no click.
  virtual std::optional<std::uint32_t> pressBegan() const = 0;

  // Gives the keyboard focus, visibly, to a button of the layout that is shown. Any other key changes nothing.
  virtual void focusButton(const std::string& key) = 0;

  // The left button came up inside the button in which it had gone down, or the keyboard or an assistive tool pressed
  // it. Kind-6 buttons do not latch by themselves.
  std::function<void(const std::string& key)> buttonPress;
  // The pointer moved over a button.
  std::function<void(const std::string& key)> buttonMouseMove;
  std::function<void()> gotFocus;
  std::function<void()> lostFocus;
  // An arrow key in the button that has the focus. Returns whether it was used; else the focus moves along the bar.
  std::function<bool(const std::string& key, Key arrow)> arrowKey;
};

inline constexpr int buttonUp = 0;
inline constexpr int buttonDown = 2;

}  // namespace nerida

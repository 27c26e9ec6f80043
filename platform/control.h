#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/units.h"

namespace nerida {

// What every control of a form has. Controls live as long as their form's window.
class Control {
 public:
  virtual ~Control() = default;
  virtual void setVisible(bool visible) = 0;
  virtual bool isVisible() const = 0;  // the control's own flag, whatever its form's
  virtual Bounds bounds() const = 0;   // twips, from the form's client area
};

class ComboBox : public Control {
 public:
  virtual void clear() = 0;  // raises nothing, but leaves no entry selected
  virtual void addItem(const std::string& text) = 0;
  virtual int count() const = 0;
  virtual std::string item(int index) const = 0;  // error 9 outside the list
  virtual int selected() const = 0;               // -1 for none
  // Selects an entry, or none with -1. Raises click when that changes the selection. Error 9 outside the list.
  virtual void select(int index) = 0;

  std::function<void()> click;
};

class TextBox : public Control {
 public:
  virtual std::string text() const = 0;
  virtual void setText(const std::string& text) = 0;

  // Enter was pressed in the box. Other keys go into the text.
  std::function<void()> enterPressed;
};

class Canvas;

// The keys that drawn controls understand.
enum class Key { left, right, up, down, choose };  // choose: Enter or Space

// A part of a drawn control that a person points at, reads and presses like a control of its own: a cell of a grid.
// Its name is its accessible name and its tooltip. A control whose only part can be pressed is a button itself.
struct DrawnPart {
  std::string name;
  Bounds place;  // twips, from the control's top-left corner
  bool pressed = false;
  bool focused = false;
  bool hot = false;        // the pointer is over it
  bool captioned = false;  // its name is written beside it: it needs no tooltip
};

// A control that its form draws and whose mouse it watches. Places are twips from the control's top-left corner. It
// takes the keyboard focus only when keyDown or parts is set.
class PictureBox : public Control {
 public:
  virtual void repaint() = 0;
  virtual void setFocus() = 0;
  // Whether the Tab key stops here, as it does unless told otherwise.
  virtual void setTabStop(bool stops) = 0;
  virtual void setTooltip(const std::string& text) = 0;  // of the control as a whole

  std::function<void(Canvas&)> paint;
  std::function<void(Twips x, Twips y)> mouseMove;
  std::function<void(Twips x, Twips y)> mouseDown;  // any button; the mouse is captured until it comes up
  std::function<void(Twips x, Twips y)> mouseUp;
  std::function<void()> gotFocus;
  // Raised when the focus has gone: the window that is active by then is known to Desktop::activeWindow.
  std::function<void()> lostFocus;
  // Returns whether the key was used. Tab and Escape are the form's: Tab moves on, Escape raises closeRequested.
  std::function<bool(Key key)> keyDown;

  // The parts as they are now, for tooltips and assistive tools, and what pressing one of them does.
  std::function<std::vector<DrawnPart>()> parts;
  std::function<void(std::size_t part)> pressPart;
};

class Button : public Control {
 public:
  std::function<void()> click;  // by mouse, by Enter or Space, or by an assistive tool
};

// A picture that was read from a file; see Files::loadPicture.
class StoredPicture {
 public:
  virtual ~StoredPicture() = default;
  virtual Size size() const = 0;  // in pixels
};

// Shows a picture. Without a click of its own it lets the mouse through to what is below.
class Image : public Control {
 public:
  // In the middle of its place, and as large as that allows without distorting it.
  virtual void setPicture(std::shared_ptr<const StoredPicture> picture) = 0;
  // Pixel for pixel: the control takes the picture's size.
  virtual void takePicture(std::shared_ptr<const StoredPicture> picture) = 0;
  virtual void setTop(Twips top) = 0;  // its size stays

  std::function<void()> click;
};

class Label : public Control {
 public:
  virtual void setCaption(const std::string& text) = 0;
  virtual void setBackground(Rgb color) = 0;  // a light one, below dark letters; the desktop's unless told otherwise

  // A label with one of these belongs to the drawn control that it captions; assistive tools are told of that one.
  std::function<void()> mouseMove;
  std::function<void()> mouseDown;  // any button, as on the control that it captions
  std::function<void()> mouseUp;    // wherever the button came up again
  std::function<void()> click;      // after it, when that was on the label
};

}  // namespace nerida

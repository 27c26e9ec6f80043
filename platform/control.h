#pragma once

#include <functional>
#include <string>

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
};

class Canvas;

class PictureBox : public Control {
 public:
  virtual void repaint() = 0;

  std::function<void(Canvas&)> paint;
};

class Label : public Control {
 public:
  virtual void setCaption(const std::string& text) = 0;
};

}  // namespace nerida

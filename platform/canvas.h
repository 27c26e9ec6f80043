#pragma once

#include <cstdint>

#include "platform/units.h"

namespace nerida {

// System colours that drawings use, so that they follow the desktop's colour scheme.
enum class SystemColor { selection = 13, buttonFace = 15, buttonShadow = 16, buttonHighlight = 20 };

// Where a picture box draws itself: straight lines and boxes, in twips from its top-left corner.
class Canvas {
 public:
  virtual ~Canvas() = default;
  // One pixel wide; the end point is drawn too.
  virtual void line(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) = 0;
  virtual void box(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) = 0;
  virtual void filledBox(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor color) = 0;
  // The same in a colour of the program's own.
  virtual void line(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) = 0;
  virtual void filledBox(Twips x1, Twips y1, Twips x2, Twips y2, Rgb color) = 0;
  // The system's dotted focus rectangle, drawn only while the control's form shows where the keyboard is.
  virtual void focusBox(Twips x1, Twips y1, Twips x2, Twips y2) = 0;
};

}  // namespace nerida

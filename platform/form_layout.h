#pragma once

#include <span>

#include "platform/units.h"

namespace nerida {

enum class ControlKind { buttonBar, comboBox, textBox, pictureBox, label, button, image, listView, preview };

// How a control follows a form that is made larger: the share, in percent, of the added width and height by which each
// of its edges moves.
struct Stretch {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

// One control of a form: its name, its index in a control array (0 for a control of its own), its place in twips on
// the form's client area. name, text and tooltip are UTF-8 literals with static storage.
struct ControlLayout {
  const char* name;
  int index;
  ControlKind kind;
  Bounds bounds;
  const char* text = "";     // caption or initial text; of a list, a preview or a picture its accessible name
  const char* tooltip = "";  // also the accessible name of a control without one of its own
  Stretch stretch = {};      // on dialogs
  // The picture box that it lies in, listed before it: its place is measured from there, and it is cut off there.
  const char* container = nullptr;
};

// One entry of a form's menu bar: level 0 stands in the bar, an entry of a higher level belongs to the last entry above
// it that is one level lower. Entries of one name form an array, whose elements stand together. In captions "&" marks
// the letter of the keyboard; "-" is a separator.
struct MenuLayout {
  const char* name;
  int index;
  int level;
  const char* caption = "";
  bool visible = true;
  bool enabled = true;
};

enum class FormFrame {
  toolWindow,  // small caption with a close box, not sizable
  popup,       // thin raised frame, no caption
  dialog,      // ordinary caption with a close box; sizable, but not below the size of its layout
  borderless,
};

// A form as data. width is the width of the client area; height is the height of the whole window, caption and frame
// included, because that is the height that the program switches when it folds parts of a form away. Of a dialog,
// which is sized by its user, both are those of the client area below the menu. A form that lies on a picture has its
// size whatever the screen: there 15 twips are a pixel, however fine the screen is.
struct FormLayout {
  const char* name;
  const char* caption;
  FormFrame frame;
  Twips width;
  Twips height;
  std::span<const ControlLayout> controls;
  std::span<const MenuLayout> menu = {};
  bool onPicture = false;
  const char* accessibleName = "";  // of a form without a caption
};

}  // namespace nerida

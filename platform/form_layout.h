#pragma once

#include <span>

#include "platform/units.h"

namespace nerida {

enum class ControlKind { buttonBar, comboBox, textBox, pictureBox, label };

// One control of a form: its name, its index in a control array (0 for a control of its own), its place in twips on
// the form's client area. name, text and tooltip are UTF-8 literals with static storage.
struct ControlLayout {
  const char* name;
  int index;
  ControlKind kind;
  Bounds bounds;
  const char* text = "";     // caption or initial text
  const char* tooltip = "";  // also the accessible name of a control without one of its own
};

enum class FormFrame {
  toolWindow,  // small caption with a close box, not sizable
  popup,       // thin raised frame, no caption
  dialog,      // ordinary caption with a close box, sizable
  borderless,
};

// A form as data. width is the width of the client area; height is the height of the whole window, caption and frame
// included, because that is the height that the program switches when it folds parts of a form away.
struct FormLayout {
  const char* name;
  const char* caption;
  FormFrame frame;
  Twips width;
  Twips height;
  std::span<const ControlLayout> controls;
};

}  // namespace nerida

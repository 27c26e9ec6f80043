#pragma once

#include <functional>
#include <string>

namespace nerida {

// The menu bar of a form. Entries are named by their layout's name and their index in its array (0 for an entry of its
// own). Error 340 for an element that does not exist. A caption that is set is shown as it is: "&" has no meaning in
// it. An entry without a caption, or without any entry in sight below it, cannot be chosen.
class FormMenu {
 public:
  virtual ~FormMenu() = default;
  virtual std::string caption(const std::string& name, int index) const = 0;
  virtual void setCaption(const std::string& name, int index, const std::string& text) = 0;
  virtual void setVisible(const std::string& name, int index, bool visible) = 0;
  virtual void setEnabled(const std::string& name, int index, bool enabled) = 0;
  // Creates a further element of an array: a hidden copy of element 0, below the others. Error 360 when it exists.
  virtual void load(const std::string& name, int index) = 0;

  // The user chose an entry that has none below it.
  std::function<void(const std::string& name, int index)> click;
};

}  // namespace nerida

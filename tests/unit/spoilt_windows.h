#pragma once

#include <string_view>

#include "platform/window.h"

namespace nerida {

struct TakenButton {
  std::string_view form;
  const char* bar;
  const char* layout;
  const char* key;
  const char* bitmapSpec;
};

// A window system where a form's window comes with a button that the form is going to add itself.
class SpoiltWindows : public WindowFactory {
 public:
  SpoiltWindows(WindowFactory& windows, const TakenButton& taken) : windows(windows), taken(taken) {}

  std::shared_ptr<Window> create(const FormLayout& layout) override {
    std::shared_ptr<Window> window = windows.create(layout);
    if (isSpoilt && layout.name == taken.form) {
      ButtonBar& bar = window->buttonBar(taken.bar, 0);
      bar.openLayout(taken.layout);
      bar.addButton(taken.key, taken.bitmapSpec);
    }
    return window;
  }

  bool isSpoilt = true;

 private:
  WindowFactory& windows;
  const TakenButton taken;
};

}  // namespace nerida

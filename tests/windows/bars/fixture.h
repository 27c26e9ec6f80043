#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <oleacc.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/error.h"
#include "platform/win32/module.h"
#include "platform/win32/text.h"
#include "platform/win32/window.h"
#include "tests/windows/bars/toolbar_sample.h"
#include "toolbar/toolbar_layout.h"

namespace nerida {

template <class Action>
int errorOf(Action action) {
  try {
    action();
  } catch (const Error& failure) {
    return failure.number;
  }
  return 0;
}

inline void pump() {
  MSG message = {};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

// Other colours for the whole desktop, for as long as it lives.
class OtherColors {
 public:
  OtherColors(std::vector<int> which, const std::vector<COLORREF>& colors) : indices(std::move(which)) {
    for (const int index : indices) before.push_back(GetSysColor(index));
    set(colors);
  }
  ~OtherColors() { set(before); }
  OtherColors(const OtherColors&) = delete;
  OtherColors& operator=(const OtherColors&) = delete;

 private:
  void set(const std::vector<COLORREF>& colors) {
    SetSysColors(static_cast<int>(indices.size()), indices.data(), colors.data());
    pump();
  }

  const std::vector<int> indices;
  std::vector<COLORREF> before;
};

// The toolbar's form, unfolded and on the screen, with the swatches out of the way.
class ToolbarOnScreen : public testing::Test {
 protected:
  void SetUp() override {
    form = makeToolbarSample(factory, folder);
    for (const char* name : {"picSurface", "picLine", "picLineThick", "picAni"}) {
      form->pictureBox(name).setVisible(false);
    }
    form->setHeight(unfoldedHeight);
    for (const ControlLayout& row : toolbarLayout.controls) {
      if (row.kind != ControlKind::buttonBar) continue;
      form->buttonBar(row.name, row.index).buttonPress = [this](const std::string& key) { pressed.push_back(key); };
    }
    form->showTopmostAt({40, 60});
    pump();
  }

  HWND window() const { return reinterpret_cast<HWND>(form->handle()); }

  // The window of a control, found by its place.
  HWND windowOf(const Control& control) const {
    const double pixel = screenDpi() / 1440.0;
    const Bounds at = control.bounds();
    const POINT middle = {static_cast<LONG>((at.left.value + at.width.value / 2.0) * pixel),
                          static_cast<LONG>((at.top.value + at.height.value / 2.0) * pixel)};
    return ChildWindowFromPointEx(window(), middle, CWP_SKIPINVISIBLE);
  }

  HWND bar(const char* name, int index = 0) { return windowOf(form->buttonBar(name, index)); }

  // Dots per inch of the screen.
  static double screenDpi() {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi;
  }

  std::string folder;  // of the buttons' pictures: there are none unless a test says where
  SystemWindowFactory factory;
  std::shared_ptr<Window> form;
  std::vector<std::string> pressed;
};

using Keys = std::vector<std::string>;

}  // namespace nerida

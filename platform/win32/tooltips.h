#pragma once

#include <windows.h>

#include <optional>
#include <set>
#include <string>
#include <utility>

#include "platform/win32/handles.h"

namespace nerida {

// The tooltip window of a form: made when the pointer first comes over something that has a tooltip.
class Tooltips {
 public:
  explicit Tooltips(HWND formWindow) : form(formWindow) {}

  // Makes the tooltip of what is under the pointer known, once for each part of a control.
  void offer(HWND control, unsigned part, RECT area, const std::wstring& text);
  // A press takes the tooltip away until the pointer comes from somewhere else: it would lie over what was opened.
  void relay(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
  void pointerLeft();
  void forget(HWND control);  // its parts have changed
  void hide();

 private:
  HWND create();

  HWND form;
  UniqueWindow window;  // owned by the form's window as well: it may be gone before us
  using Part = std::pair<HWND, unsigned>;
  std::set<Part> known;
  Part under = {};             // the pointer
  std::optional<Part> silent;  // pressed, and not left since
};

}  // namespace nerida

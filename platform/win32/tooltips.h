#pragma once

#include <windows.h>

#include <set>
#include <string>
#include <utility>

#include "platform/win32/handles.h"

namespace nerida {

// The tooltip window of a form: made when the pointer first comes over something that has a tooltip.
class Tooltips {
 public:
  explicit Tooltips(HWND formWindow) : form(formWindow) {}

  // Makes a tooltip known, once for each part of a control.
  void offer(HWND control, unsigned part, RECT area, const std::wstring& text);
  void relay(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
  void forget(HWND control);  // its parts have changed
  void hide();

 private:
  HWND create();

  HWND form;
  UniqueWindow window;  // owned by the form's window as well: it may be gone before us
  std::set<std::pair<HWND, unsigned>> known;
};

}  // namespace nerida

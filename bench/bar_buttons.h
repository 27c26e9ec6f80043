#pragma once

#include <oleacc.h>
#include <windows.h>

#include <string>

namespace nerida::bench {

/// A button of a toolbar, or a part of a popup, as assistive tools see it.
struct BarButton {
  HWND bar = nullptr;
  IAccessible* accessible = nullptr;  // of the bar; held by the finder until the process ends
  LONG child = 0;
  LPARAM place = 0;  // its centre in the bar, as mouse messages tell it

  void press() const;  // the default action
  // What the mouse does, one message each.
  void hover() const { SendMessageW(bar, WM_MOUSEMOVE, 0, place); }
  void hold() const { SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, place); }
  void release() const { SendMessageW(bar, WM_LBUTTONUP, 0, place); }
};

/// Finds a button of a form by its name; there must be one.
BarButton findButton(HWND form, const std::wstring& name);

}  // namespace nerida::bench

#pragma once

#include <oleacc.h>
#include <windows.h>

#include <string>

namespace nerida::bench {

/// A button of a toolbar as assistive tools see it.
struct BarButton {
  HWND bar = nullptr;
  IAccessible* accessible = nullptr;  // of the bar; held by the finder until the process ends
  LONG child = 0;

  void press() const;
  POINT centre() const;  // in the bar
};

/// Finds a button by its name; there must be one.
BarButton findButton(HWND toolbar, const std::wstring& name);

}  // namespace nerida::bench

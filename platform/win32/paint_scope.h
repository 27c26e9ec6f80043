#pragma once

#include <windows.h>

namespace nerida {

// Answers WM_PAINT: what needs painting is painted when this goes.
class PaintScope {
 public:
  explicit PaintScope(HWND painted) : window(painted) { BeginPaint(window, &structure); }
  ~PaintScope() { EndPaint(window, &structure); }
  PaintScope(const PaintScope&) = delete;
  PaintScope& operator=(const PaintScope&) = delete;
  HDC dc() const { return structure.hdc; }
  const RECT& area() const { return structure.rcPaint; }

 private:
  HWND window;
  PAINTSTRUCT structure = {};
};

}  // namespace nerida

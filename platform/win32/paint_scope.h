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

// Answers the two messages that ask for a picture; draw(HDC) makes it.
template <class Draw>
bool drawOnRequest(HWND window, UINT message, WPARAM wParam, Draw draw) {
  if (message == WM_PAINT) {
    const PaintScope painting(window);
    draw(painting.dc());
    return true;
  }
  if (message == WM_PRINTCLIENT) draw(reinterpret_cast<HDC>(wParam));
  return message == WM_PRINTCLIENT;
}

}  // namespace nerida

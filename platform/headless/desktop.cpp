#include "platform/headless/desktop.h"

namespace nerida::headless {

void Screen::setMousePointer(MousePointer value) {
  pointer = value;
  transcript.add("pointer " + std::to_string(static_cast<int>(value)));
}

Point Screen::screenToClient(WindowHandle window, Point screen) {
  if (window != hostWindow) return {};
  return {screen.x - hostClientCorner.x, screen.y - hostClientCorner.y};
}

void Screen::setForegroundWindow(WindowHandle window) { transcript.add("foreground " + std::to_string(window)); }

}  // namespace nerida::headless

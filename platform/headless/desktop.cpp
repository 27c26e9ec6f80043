#include "platform/headless/desktop.h"

namespace nerida::headless {

void Screen::setMousePointer(MousePointer value) {
  pointer = value;
  transcript.add("pointer " + std::to_string(static_cast<int>(value)));
}

Point Screen::screenToClient(WindowHandle window, Point screen) {
  std::optional<Point> corner;
  if (window == hostWindow) corner = hostClientCorner;
  if (!corner && ownClientCorner) corner = ownClientCorner(window);
  return corner ? Point{screen.x - corner->x, screen.y - corner->y} : Point{};
}

void Screen::setForegroundWindow(WindowHandle window) { transcript.add("foreground " + std::to_string(window)); }

}  // namespace nerida::headless

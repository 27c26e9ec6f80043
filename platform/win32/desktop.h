#pragma once

#include "platform/desktop.h"

namespace nerida {

class SystemDesktop : public Desktop {
 public:
  double twipsPerPixelX() override;
  double twipsPerPixelY() override;
  Size screenSize() override;
  void setMousePointer(MousePointer pointer) override;
  Point screenToClient(WindowHandle window, Point screen) override;
  WindowHandle activeWindow() override;
  std::uint32_t clock() override;
  void setForegroundWindow(WindowHandle window) override;
};

}  // namespace nerida

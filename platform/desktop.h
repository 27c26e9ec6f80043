#pragma once

#include <cstdint>
#include <optional>

#include "platform/units.h"

namespace nerida {

enum class MousePointer { standard = 0, hourglass = 11 };

// The screen, the pointer and the windows of others.
class Desktop {
 public:
  virtual ~Desktop() = default;
  // Twips per pixel of the screen (1440 / dots per inch). May fail with any error.
  virtual double twipsPerPixelX() = 0;
  virtual double twipsPerPixelY() = 0;
  virtual Size screenSize() = 0;  // of the primary screen, in pixels
  virtual void setMousePointer(MousePointer pointer) = 0;
  // The client coordinates of a screen point in a window; (0, 0) for a window that does not exist. Never fails.
  virtual Point screenToClient(WindowHandle window, Point screen) = 0;
  // The active window of this thread, 0 when another program's window is active.
  virtual WindowHandle activeWindow() = 0;
  // The system's milliseconds, from no particular start; they wrap round.
  virtual std::uint32_t clock() = 0;
  // Asks for the foreground. Ignored while another application has it: closing a popup because the user went
  // elsewhere must not drag the user back.
  virtual void setForegroundWindow(WindowHandle window) = 0;
};

}  // namespace nerida

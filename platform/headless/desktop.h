#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/desktop.h"
#include "platform/headless/transcript.h"

namespace nerida::headless {

class Screen : public Desktop {
 public:
  explicit Screen(Transcript& transcript) : transcript(transcript) {}

  double twipsPerPixelX() override { return horizontal(); }
  double twipsPerPixelY() override { return vertical(); }
  Size screenSize() override { return size; }
  void setMousePointer(MousePointer value) override;
  Point screenToClient(WindowHandle window, Point screen) override;
  WindowHandle activeWindow() override { return active; }
  std::uint32_t clock() override { return milliseconds; }
  void setForegroundWindow(WindowHandle window) override;

  std::function<double()> horizontal = [] { return 15.0; };
  std::function<double()> vertical = [] { return 15.0; };
  Size size{1024, 768};
  MousePointer pointer = MousePointer::standard;
  std::uint32_t milliseconds = 0xFFFFFF00;  // shortly before they wrap round
  WindowHandle active = 0;                  // follows the windows that are shown and hidden
  WindowHandle hostWindow = 7;              // the one window of others that exists
  Point hostClientCorner;                   // its client area on the screen
  // Where the client area of one of our own windows begins; nothing for a window that is not ours.
  std::function<std::optional<Point>(WindowHandle)> ownClientCorner;

 private:
  Transcript& transcript;
};

}  // namespace nerida::headless

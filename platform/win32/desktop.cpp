#include "platform/win32/desktop.h"

#include <windows.h>

#include "platform/error.h"
#include "platform/win32/module.h"

namespace nerida {
namespace {

constexpr double twipsPerInch = 1440.0;

HWND handleOf(WindowHandle window) { return reinterpret_cast<HWND>(window); }

double twipsPerPixel(int capability) {
  HDC screen = GetDC(nullptr);
  if (screen == nullptr) throw Error(error::outOfMemory);
  const int dotsPerInch = GetDeviceCaps(screen, capability);
  ReleaseDC(nullptr, screen);
  if (dotsPerInch <= 0) throw Error(error::invalidCall);
  return twipsPerInch / dotsPerInch;
}

// True too while nobody has the foreground: it is then anybody's.
bool foregroundIsOurs() {
  HWND foreground = GetForegroundWindow();
  if (foreground == nullptr) return true;
  DWORD process = 0;
  GetWindowThreadProcessId(foreground, &process);
  return process == GetCurrentProcessId();
}

}  // namespace

double SystemDesktop::twipsPerPixelX() { return twipsPerPixel(LOGPIXELSX); }
double SystemDesktop::twipsPerPixelY() { return twipsPerPixel(LOGPIXELSY); }

Size SystemDesktop::screenSize() { return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

void SystemDesktop::setMousePointer(MousePointer pointer) {
  SetCursor(LoadCursorW(nullptr, pointer == MousePointer::hourglass ? IDC_WAIT : IDC_ARROW));
}

Point SystemDesktop::screenToClient(WindowHandle window, Point screen) {
  POINT point = {screen.x, screen.y};
  if (!ScreenToClient(handleOf(window), &point)) return {};
  return {static_cast<std::int32_t>(point.x), static_cast<std::int32_t>(point.y)};
}

WindowHandle SystemDesktop::activeWindow() { return reinterpret_cast<WindowHandle>(GetActiveWindow()); }

std::uint32_t SystemDesktop::clock() { return GetTickCount(); }

void SystemDesktop::setForegroundWindow(WindowHandle window) {
  if (!applicationIsLosingFocus() && foregroundIsOurs()) SetForegroundWindow(handleOf(window));
}

}  // namespace nerida

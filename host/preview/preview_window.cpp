#include "host/preview/preview_window.h"

#include <windowsx.h>

#include "host/win32/server.h"

namespace nerida::host {
namespace {

constexpr const wchar_t* className = L"ZephraPreview";
constexpr UINT_PTR animationTimer = 1;
constexpr UINT framePeriod = 30;   // milliseconds
constexpr int anglePerPixel = 60;  // hundredths of a degree: across a preview of 200 pixels, a third of a turn
constexpr int anglePerKey = 750;
constexpr UINT firstStyle = 1;  // menu commands; 0 means that nothing was chosen
constexpr UINT homeCommand = 0x1000;

// One class for all windows of the module, gone with the last of them.
class WindowClass {
 public:
  static void acquire(WNDPROC procedure) {
    if (users++ > 0) return;
    WNDCLASSEXW description = {};
    description.cbSize = sizeof description;
    description.style = CS_DBLCLKS;
    description.lpfnWndProc = procedure;
    description.hInstance = thisModule();
    description.hCursor = LoadCursorW(nullptr, IDC_SIZEALL);
    description.lpszClassName = className;
    RegisterClassExW(&description);
  }
  static void release() {
    if (--users == 0) UnregisterClassW(className, thisModule());
  }

 private:
  static inline int users = 0;  // windows live on the one thread of their apartment
};

}  // namespace

PreviewWindow::PreviewWindow(Preview& preview, HWND parent, const RECT& place) : preview(preview) {
  WindowClass::acquire(procedure);
  CreateWindowExW(0, className, preview.modelName.c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP, place.left, place.top,
                  widthOf(place), heightOf(place), parent, nullptr, thisModule(), this);
  previewChanged();
}

PreviewWindow::~PreviewWindow() {
  if (window != nullptr) DestroyWindow(window);
  WindowClass::release();
}

LRESULT CALLBACK PreviewWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    auto* self = static_cast<PreviewWindow*>(pointerOf<CREATESTRUCTW*>(lParam)->lpCreateParams);
    self->window = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* self = pointerOf<PreviewWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  try {
    return self->handleMessage(message, wParam, lParam);
  } catch (...) {
    return 0;
  }
}

LRESULT PreviewWindow::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT at = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  switch (message) {
    case WM_PAINT:
      paint();
      return 0;
    case WM_ERASEBKGND:
      return TRUE;
    case WM_SIZE:
      repaint();
      return 0;
    case WM_LBUTTONDOWN:
      startTurning(at);
      return 0;
    case WM_MOUSEMOVE:
      turnTo(at);
      return 0;
    case WM_LBUTTONUP:
      if (turning) ReleaseCapture();
      return 0;
    case WM_CAPTURECHANGED:
      turning = false;
      return 0;
    case WM_LBUTTONDBLCLK:
      goHome();
      return 0;
    case WM_MOUSEWHEEL:
      wheel += GET_WHEEL_DELTA_WPARAM(wParam);
      scale(wheel / WHEEL_DELTA);
      wheel %= WHEEL_DELTA;
      return 0;
    case WM_CONTEXTMENU:
      chooseStyle(at);
      return 0;
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS;
    case WM_KEYDOWN:
      if (pressKey(wParam)) return 0;
      break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_UPDATEUISTATE:
      InvalidateRect(window, nullptr, FALSE);
      break;
    case WM_TIMER:
      timePasses();
      return 0;
    case WM_NCDESTROY:
      SetWindowLongPtrW(window, GWLP_USERDATA, 0);
      window = nullptr;
      return 0;
    default:
      break;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

void PreviewWindow::repaint() {
  outOfDate = true;
  InvalidateRect(window, nullptr, FALSE);
}

void PreviewWindow::previewChanged() {
  if (window == nullptr) return;
  repaint();
  // Assistive tools read the window's text.
  SetWindowTextW(window, preview.scene.hasModel() ? preview.modelName.c_str() : L"No model");
  runTimer();
}

void PreviewWindow::paint() {
  PAINTSTRUCT painting;
  HDC dc = BeginPaint(window, &painting);
  RECT area;
  GetClientRect(window, &area);
  if (outOfDate && !IsRectEmpty(&area)) {
    picture.resize(widthOf(area), heightOf(area));
    preview.scene.render(picture);
    outOfDate = false;
  }
  blit(dc, area, picture);
  paintFocus(dc, area);
  EndPaint(window, &painting);
}

void PreviewWindow::paintFocus(HDC dc, RECT area) const {
  const auto state = SendMessageW(window, WM_QUERYUISTATE, 0, 0);
  if (GetFocus() != window || (state & UISF_HIDEFOCUS) != 0) return;
  InflateRect(&area, -2, -2);
  DrawFocusRect(dc, &area);
}

void PreviewWindow::startTurning(POINT at) {
  SetFocus(window);
  SetCapture(window);
  turning = true;
  last = at;
}

// The side under the pointer follows it.
void PreviewWindow::turnTo(POINT at) {
  if (!turning) return;
  turn((last.y - at.y) * anglePerPixel, (last.x - at.x) * anglePerPixel);
  last = at;
}

void PreviewWindow::turn(int up, int left) {
  preview.scene.turnBy(up, left);
  repaint();
}

void PreviewWindow::scale(int steps) {
  preview.scene.scaleModel(steps);
  repaint();
}

void PreviewWindow::goHome() {
  preview.scene.resetHome();
  repaint();
}

bool PreviewWindow::pressKey(WPARAM key) {
  switch (key) {
    case VK_LEFT:
    case VK_RIGHT:
      turn(0, key == VK_LEFT ? anglePerKey : -anglePerKey);
      return true;
    case VK_UP:
    case VK_DOWN:
      turn(key == VK_UP ? anglePerKey : -anglePerKey, 0);
      return true;
    case VK_ADD:
    case VK_OEM_PLUS:
      scale(1);
      return true;
    case VK_SUBTRACT:
    case VK_OEM_MINUS:
      scale(-1);
      return true;
    case VK_HOME:
      goHome();
      return true;
    default:
      return false;
  }
}

void PreviewWindow::chooseStyle(POINT at) {
  if (at.x == -1 && at.y == -1) {  // asked for by the keyboard
    at = {0, 0};
    ClientToScreen(window, &at);
  }
  HMENU menu = CreatePopupMenu();
  const std::vector<std::string> styles = Scene::lookStyleNames();
  for (UINT i = 0; i < styles.size(); ++i) {
    const bool current = styles[i] == preview.scene.lookStyleName();
    AppendMenuW(menu, current ? MF_CHECKED : MF_UNCHECKED, firstStyle + i, wide(styles[i]).c_str());
  }
  AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  AppendMenuW(menu, MF_STRING, homeCommand, L"&Home position\tHome");
  HWND asked = window;
  const auto chosen =
      static_cast<UINT>(TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, 0, asked, nullptr));
  DestroyMenu(menu);
  // The window, and this object with it, may have gone while the menu was open.
  if (!IsWindow(asked) || chosen == 0) return;
  if (chosen == homeCommand) {
    goHome();
    return;
  }
  preview.scene.setLookStyle(styles[chosen - firstStyle]);
  repaint();
}

void PreviewWindow::timePasses() {
  const ULONGLONG now = GetTickCount64();
  const bool seen = IsWindowVisible(window) != FALSE;
  if (seen && preview.scene.animation.tick(static_cast<double>(now - lastTick) / 1000)) repaint();
  lastTick = now;
}

void PreviewWindow::runTimer() {
  if (!preview.moves()) {
    KillTimer(window, animationTimer);
    return;
  }
  lastTick = GetTickCount64();
  SetTimer(window, animationTimer, framePeriod, nullptr);
}

}  // namespace nerida::host

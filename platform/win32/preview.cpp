#include "platform/win32/preview.h"

#include <utility>

#include "platform/win32/automation.h"
#include "platform/win32/form_window.h"
#include "platform/win32/paint_scope.h"
#include "platform/win32/window_class.h"

namespace nerida {
namespace {

constexpr const wchar_t* progId = L"ZephraBrowser.Preview";
constexpr int edge = 1;  // pixels of the frame
constexpr const wchar_t* watcherName = L"NeridaPreview";

}  // namespace

void SystemPreview::create() { createOwn(pictureBoxClass, WS_CLIPCHILDREN); }

SystemPreview::~SystemPreview() { stopWatching(); }

RECT SystemPreview::inside() const {
  const SIZE extent = size();
  return {edge, edge, extent.cx - edge, extent.cy - edge};
}

ObjectRef SystemPreview::object() {
  if (!control) control.emplace(window(), progId, inside());
  if (watched == nullptr) watch(control->window());
  return wrapDispatch(control->dispatch().get());
}

std::array<std::int32_t, 3> SystemPreview::orientation() {
  std::array<Value, 3> variables{Value(std::int32_t{0}), Value(std::int32_t{0}), Value(std::int32_t{0})};
  std::array<Argument, 3> arguments{Argument(&variables[0]), Argument(&variables[1]), Argument(&variables[2])};
  object()->call("GetOrientation", arguments);
  return {toInt32(variables[0]), toInt32(variables[1]), toInt32(variables[2])};
}

bool SystemPreview::takesFocus() const {
  const SIZE extent = size();
  return watched != nullptr && isReachable({extent.cx / 2, extent.cy / 2});
}

void SystemPreview::watch(HWND window) {
  if (window == nullptr || !SetPropW(window, watcherName, this)) return;
  watched = window;
  behind =
      reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(watchedProcedure)));
}

void SystemPreview::stopWatching() {
  if (watched != nullptr) RemovePropW(std::exchange(watched, nullptr), watcherName);
}

// The control's window lies in ours and goes first.
LRESULT CALLBACK SystemPreview::watchedProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* preview = static_cast<SystemPreview*>(GetPropW(window, watcherName));
  if (preview == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  const WNDPROC behind = preview->behind;
  if (message == WM_NCDESTROY) preview->stopWatching();
  return preview->form().dispatch([&]() -> LRESULT {
    if (preview->form().handleNavigation(message, wParam, preview)) return 0;
    return CallWindowProcW(behind, window, message, wParam, lParam);
  });
}

// Like the list beside it: thinly framed, and white where nothing is shown.
void SystemPreview::paintOn(HDC target) const {
  const SIZE extent = size();
  const RECT whole = {0, 0, extent.cx, extent.cy};
  FrameRect(target, &whole, GetSysColorBrush(COLOR_BTNSHADOW));
  const RECT area = inside();
  if (!control) FillRect(target, &area, GetSysColorBrush(COLOR_WINDOW));
}

LRESULT SystemPreview::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (drawOnRequest(window(), message, wParam, [this](HDC target) { paintOn(target); })) return 0;
  switch (message) {
    case WM_ERASEBKGND:
      return TRUE;
    case WM_SETFOCUS:
      if (watched != nullptr) SetFocus(watched);
      return 0;
    case WM_SIZE:
      if (control) control->place(inside());
      InvalidateRect(window(), nullptr, FALSE);
      break;
    case WM_DESTROY:
      control.reset();
      break;
    default:
      break;
  }
  return ControlOf::onMessage(message, wParam, lParam);
}

}  // namespace nerida

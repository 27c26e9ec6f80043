#include "platform/win32/preview.h"

#include "platform/win32/automation.h"
#include "platform/win32/form_window.h"
#include "platform/win32/paint_scope.h"
#include "platform/win32/window_class.h"

namespace nerida {
namespace {

constexpr const wchar_t* progId = L"ZephraBrowser.Preview";
constexpr int edge = 1;  // pixels of the frame

}  // namespace

SystemPreview::SystemPreview(FormWindow& owner, const ControlLayout& row) : ControlOf(owner, row) {
  createOwn(pictureBoxClass, WS_CLIPCHILDREN);
}

RECT SystemPreview::inside() const {
  const SIZE extent = size();
  return {edge, edge, extent.cx - edge, extent.cy - edge};
}

ObjectRef SystemPreview::object() {
  if (!control) control.emplace(window(), progId, inside());
  return wrapDispatch(control->dispatch().get());
}

std::array<std::int32_t, 3> SystemPreview::orientation() {
  std::array<Value, 3> variables{Value(std::int32_t{0}), Value(std::int32_t{0}), Value(std::int32_t{0})};
  std::array<Argument, 3> arguments{Argument(&variables[0]), Argument(&variables[1]), Argument(&variables[2])};
  object()->call("GetOrientation", arguments);
  return {toInt32(variables[0]), toInt32(variables[1]), toInt32(variables[2])};
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

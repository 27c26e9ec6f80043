#include "platform/win32/native_control.h"

#include <algorithm>
#include <array>

#include "platform/error.h"
#include "platform/win32/form_window.h"
#include "platform/win32/module.h"
#include "platform/win32/text.h"

namespace nerida {

NativeControl::NativeControl(FormWindow& owner, const ControlLayout& row) : parent(owner), place(row) {}

HWND NativeControl::window() const {
  if (!exists()) parent.handle();
  return handle;
}

std::wstring NativeControl::accessibleName() const {
  if (*place.tooltip != '\0') return wide(place.tooltip);
  constexpr std::array named = {ControlKind::listView, ControlKind::preview, ControlKind::image,
                                ControlKind::pictureBox};
  const bool isNamed = std::ranges::find(named, place.kind) != named.end();
  return wide(isNamed && *place.text != '\0' ? place.text : place.name);
}

HWND NativeControl::createWindow(const wchar_t* windowClass, const wchar_t* text, DWORD style, DWORD extendedStyle,
                                 int height, void* parameter) {
  const RECT at = area();
  const HWND window = CreateWindowExW(extendedStyle | WS_EX_NOPARENTNOTIFY, windowClass, text,
                                      style | WS_CHILD | (shown ? WS_VISIBLE : 0U) | WS_CLIPSIBLINGS, at.left, at.top,
                                      at.right - at.left, height != 0 ? height : at.bottom - at.top,
                                      parent.windowAround(place), nullptr, moduleInstance(), parameter);
  if (window == nullptr) throw Error(error::outOfMemory);
  return window;
}

void NativeControl::createOwn(const wchar_t* windowClass, DWORD style) {
  createWindow(windowClass, accessibleName().c_str(), style, 0, 0, this);
}

void NativeControl::createStandard(const wchar_t* windowClass, const wchar_t* text, DWORD style, DWORD extendedStyle,
                                   int height) {
  handle = createWindow(windowClass, text, style, extendedStyle, height, nullptr);
  SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  previous =
      reinterpret_cast<WNDPROC>(SetWindowLongPtrW(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(controlProcedure)));
  SendMessageW(handle, WM_SETFONT, reinterpret_cast<WPARAM>(parent.font()), FALSE);
}

LRESULT NativeControl::passOn(UINT message, WPARAM wParam, LPARAM lParam) {
  if (previous != nullptr) return CallWindowProcW(previous, handle, message, wParam, lParam);
  return DefWindowProcW(handle, message, wParam, lParam);
}

SIZE NativeControl::size() const {
  RECT client = {};
  GetClientRect(handle, &client);
  return {client.right, client.bottom};
}

void NativeControl::show(bool visible) {
  shown = visible;
  ShowWindow(handle, visible ? SW_SHOWNA : SW_HIDE);
}

RECT NativeControl::area() const { return parent.place(place); }

bool NativeControl::isReachable(POINT point) const {
  const RECT at = area();
  return exists() && parent.controlAt({at.left + point.x, at.top + point.y}) == this;
}

void NativeControl::detach() { handle = nullptr; }

void NativeControl::onCommand(WORD) {}

LRESULT NativeControl::onNotify(const NMHDR&) { return 0; }

void NativeControl::reposition() {
  const RECT at = area();
  SetWindowPos(handle, nullptr, at.left, at.top, at.right - at.left, at.bottom - at.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT NativeControl::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool isMouse = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
  if (isMouse && *place.tooltip != '\0') relayToTooltips(message, wParam, lParam);
  return passOn(message, wParam, lParam);
}

void NativeControl::relayToTooltips(UINT message, WPARAM wParam, LPARAM lParam) {
  const SIZE extent = size();
  if (message == WM_MOUSEMOVE) parent.tooltips().offer(handle, 0, {0, 0, extent.cx, extent.cy}, wide(place.tooltip));
  parent.tooltips().relay(handle, message, wParam, lParam);
}

LRESULT CALLBACK controlProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    auto* created = static_cast<NativeControl*>(creation->lpCreateParams);
    if (created != nullptr) {
      created->handle = window;
      SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
  }
  auto* control = reinterpret_cast<NativeControl*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (control == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  return control->parent.dispatch([&] {
    const LRESULT result = control->onMessage(message, wParam, lParam);
    if (message == WM_MOUSELEAVE) control->parent.pointerLeft();
    if (message == WM_NCDESTROY) {
      SetWindowLongPtrW(window, GWLP_USERDATA, 0);
      control->detach();
    }
    return result;
  });
}

}  // namespace nerida

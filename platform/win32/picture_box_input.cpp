// What the mouse, the keyboard and assistive tools do to a picture box.
#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "platform/win32/form_window.h"
#include "platform/win32/picture_box.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

std::optional<Key> keyOf(WPARAM key) {
  switch (key) {
    case VK_LEFT:
      return Key::left;
    case VK_RIGHT:
      return Key::right;
    case VK_UP:
      return Key::up;
    case VK_DOWN:
      return Key::down;
    case VK_RETURN:
    case VK_SPACE:
      return Key::choose;
    default:
      return std::nullopt;
  }
}

}  // namespace

bool SystemPictureBox::onMouse(UINT message, LPARAM lParam) {
  const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  switch (message) {
    case WM_MOUSEMOVE:
      onMouseMove(point);
      return true;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
      clickStarted = true;
      onButtonDown(point);
      return true;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
      if (std::exchange(clickStarted, false) && !mouseDown && !mouseUp) form().raise(form().clicked);
      onButtonUp(point);
      return true;
    default:
      return false;
  }
}

void SystemPictureBox::onMouseMove(POINT point) {
  if (!form().pointerMoved(window(), point)) return;
  form().raise(mouseMove, form().scale().twipsX(point.x), form().scale().twipsY(point.y));
}

void SystemPictureBox::onButtonDown(POINT point) {
  form().setShowsFocus(false);
  if (!mouseDown && !mouseUp) return;
  held = true;
  SetCapture(window());
  form().raise(mouseDown, form().scale().twipsX(point.x), form().scale().twipsY(point.y));
}

void SystemPictureBox::onButtonUp(POINT point) {
  if (!std::exchange(held, false)) return;
  if (GetCapture() == window()) ReleaseCapture();
  form().raise(mouseUp, form().scale().twipsX(point.x), form().scale().twipsY(point.y));
}

void SystemPictureBox::onHidden() {
  clickStarted = held = false;
  if (GetCapture() == window()) ReleaseCapture();
}

bool SystemPictureBox::onKey(WPARAM key, LPARAM flags) {
  constexpr LPARAM wasDown = LPARAM{1} << 30;
  const std::optional<Key> meant = keyOf(key);
  if (!meant) return false;
  if (*meant == Key::choose && (flags & wasDown) != 0) return true;
  form().setShowsFocus(true);
  const bool used = form().raise(keyDown, *meant);
  if (used) announceFocus();
  return used;
}

// The system tells of the control as a whole; a part of it is ours to tell of.
void SystemPictureBox::announceFocus() const {
  const int part = focusedPart();
  if (part >= 0 && !isOneButton()) NotifyWinEvent(EVENT_OBJECT_FOCUS, window(), OBJID_CLIENT, part + 1);
}

void SystemPictureBox::relayTooltip(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_MOUSEMOVE) offerTooltip({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
  form().tooltips().relay(window(), message, wParam, lParam);
}

// One tooltip at a time, that of the part below the pointer: the parts may change at any time.
void SystemPictureBox::offerTooltip(POINT point) {
  const int part = partAt(point);
  const std::wstring name = part >= 0 ? partTooltip(part) : parts ? std::wstring() : tooltip;
  if (part != offeredPart || name != offeredName) form().tooltips().forget(window());
  offeredPart = part;
  offeredName = name;
  const SIZE extent = size();
  const RECT area = part >= 0 ? partArea(part) : RECT{0, 0, extent.cx, extent.cy};
  if (!name.empty()) form().tooltips().offer(window(), static_cast<unsigned>(part + 1), area, name);
}

// A failing form has no parts.
std::vector<DrawnPart> SystemPictureBox::currentParts() const {
  try {
    return form().raise(parts);
  } catch (...) {
    return {};
  }
}

std::optional<DrawnPart> SystemPictureBox::partOf(int index) const {
  std::vector<DrawnPart> all = currentParts();
  if (index < 0 || index >= static_cast<int>(all.size())) return std::nullopt;
  return std::move(all[static_cast<std::size_t>(index)]);
}

std::wstring SystemPictureBox::wholeName() const { return tooltip.empty() ? accessibleName() : tooltip; }

std::wstring SystemPictureBox::partName(int part) const {
  const std::optional<DrawnPart> found = partOf(part);
  return found ? wide(found->name) : std::wstring();
}

std::wstring SystemPictureBox::partTooltip(int part) const {
  const std::optional<DrawnPart> found = partOf(part);
  return found && !found->captioned ? wide(found->name) : std::wstring();
}

RECT SystemPictureBox::partArea(int part) const {
  const std::optional<DrawnPart> found = partOf(part);
  return found ? form().scale().pixels(found->place) : RECT{};
}

DWORD SystemPictureBox::wholeStateFlags() const {
  DWORD flags = 0;
  if (!IsWindowVisible(window())) flags |= STATE_SYSTEM_INVISIBLE;
  if (!IsWindowEnabled(window())) flags |= STATE_SYSTEM_UNAVAILABLE;
  return flags;
}

DWORD SystemPictureBox::partStateFlags(int part) const {
  const std::optional<DrawnPart> found = partOf(part);
  if (!found || !IsWindowVisible(window())) return STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_UNAVAILABLE;
  DWORD flags = found->pressed ? STATE_SYSTEM_PRESSED : 0;
  if (found->hot) flags |= STATE_SYSTEM_HOTTRACKED;
  if (!IsWindowEnabled(form().window())) return flags | STATE_SYSTEM_UNAVAILABLE;
  flags |= STATE_SYSTEM_FOCUSABLE;
  if (found->focused && GetFocus() == window()) flags |= STATE_SYSTEM_FOCUSED;
  return flags;
}

int SystemPictureBox::partAt(POINT point) const {
  const std::vector<DrawnPart> all = currentParts();
  const auto found = std::find_if(all.begin(), all.end(), [&](const DrawnPart& part) {
    const RECT area = form().scale().pixels(part.place);
    return PtInRect(&area, point);
  });
  return found == all.end() ? -1 : static_cast<int>(found - all.begin());
}

int SystemPictureBox::focusedPart() const {
  const std::vector<DrawnPart> all = currentParts();
  const auto found = std::find_if(all.begin(), all.end(), [](const DrawnPart& part) { return part.focused; });
  return found == all.end() ? -1 : static_cast<int>(found - all.begin());
}

bool SystemPictureBox::canPressPart(int part) const {
  return pressPart && partOf(part) && IsWindowVisible(window()) && IsWindowEnabled(form().window());
}

void SystemPictureBox::doPart(int part) { form().raise(pressPart, static_cast<std::size_t>(part)); }

}  // namespace nerida

// What a form does with its messages: activation, clicks, the close box, and the procedure hooked in front.
#include <windowsx.h>

#include "platform/win32/accessible_name.h"
#include "platform/win32/form_window.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

constexpr LPARAM nothingToRepaint = -1;  // of a window's frame, as the system wants to be told
constexpr UINT_PTR focusTimer = 0x4E46;
constexpr UINT focusPatience = 200;  // milliseconds
constexpr DWORD justNow = 500;

bool isFocusNobodys() {
  const HWND foreground = GetForegroundWindow();
  return foreground == nullptr || foreground == GetDesktopWindow();
}

bool hasActivePopupJustHidden() {
  const std::optional<DWORD> since = sinceActivePopupHid();
  return since && *since <= justNow;
}

}  // namespace

LRESULT CALLBACK formProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    auto* created = static_cast<FormWindow*>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
    created->hwnd = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
  }
  auto* form = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (form == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  return form->dispatch([&] { return form->onMessage(message, wParam, lParam); });
}

LRESULT CALLBACK hookProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* form = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (form == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  return form->dispatch([&] { return form->runHook(message, wParam, lParam); });
}

// Another form of this module.
FormWindow* FormWindow::formOf(HWND window) {
  if (window == nullptr || GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId()) return nullptr;
  const bool isOurs = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(window, GWLP_HINSTANCE)) == moduleInstance() &&
                      GetClassLongPtrW(window, GCLP_WNDPROC) == reinterpret_cast<ULONG_PTR>(formProcedure);
  return isOurs ? reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA)) : nullptr;
}

LRESULT FormWindow::runHook(UINT message, WPARAM wParam, LPARAM lParam) {
  const std::shared_ptr<const WindowProcedure> procedure = hooked;  // stays while it runs, even if taken off inside
  const Message received = {handle(), message, wParam, lParam};
  if (!procedure) return callPrevious(received);
  if (awaitsFocus(received)) return 0;
  if (message != WM_TIMER || wParam != focusTimer) return callHook(*procedure, received);
  KillTimer(hwnd, focusTimer);
  if (const std::optional<Message> lost = std::exchange(heldBack, std::nullopt)) callHook(*procedure, *lost);
  return 0;
}

LRESULT FormWindow::callHook(const WindowProcedure& procedure, const Message& message) {
  if (message.number != messageActivateApplication || message.wParam != 0) return procedure(message);
  const LosingFocus losing;
  return procedure(message);
}

// A window manager that sees the active popup go may take the focus from the whole application, and give it to another
// of its windows at once. Nobody has it meanwhile. The toolbar must not blink for that, nor the model stop and go: the
// loss is told only if it lasts.
bool FormWindow::awaitsFocus(const Message& message) {
  if (message.number != messageActivateApplication) return false;
  if (message.wParam != 0) return std::exchange(heldBack, std::nullopt).has_value();
  if (!hasActivePopupJustHidden() || !isFocusNobodys()) return false;
  heldBack = message;
  SetTimer(hwnd, focusTimer, focusPatience, nullptr);
  return true;
}

void FormWindow::hook(WindowProcedure procedure) {
  const bool isGone = isRealized && hwnd == nullptr;
  if (hooked || isGone) return;
  hooked = std::make_shared<const WindowProcedure>(std::move(procedure));
  if (isRealized) installHook();
}

void FormWindow::installHook() {
  const auto first = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(hwnd, GWLP_WNDPROC));
  const bool wasCutOff = first == behindHook;
  if (inChain && !wasCutOff) return;  // still there: see unhook
  behindHook = first;
  SetWindowLongPtrW(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(hookProcedure));
  inChain = true;
}

// Someone else may have put a procedure in front of ours meanwhile. It must not be cut off: then our procedure stays
// in the chain and only passes on.
void FormWindow::unhook() {
  if (!hooked) return;
  hooked.reset();
  if (hwnd == nullptr) return;
  if (GetWindowLongPtrW(hwnd, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(hookProcedure)) {
    SetWindowLongPtrW(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(behindHook));
    inChain = false;
  }
}

std::intptr_t FormWindow::callPrevious(const Message& message) {
  const auto window = reinterpret_cast<HWND>(message.window);
  if (behindHook == nullptr) return DefWindowProcW(window, message.number, message.wParam, message.lParam);
  return CallWindowProcW(behindHook, window, message.number, message.wParam, message.lParam);
}

NativeControl* FormWindow::controlOf(HWND window) const {
  for (const auto& control : controls) {
    if (window != nullptr && control->window() == window) return control.get();
  }
  return nullptr;
}

// Asked of our own table instead of the system, which would take longer for it than for all the rest of a press.
const NativeControl* FormWindow::controlAt(POINT point) const {
  RECT client = {};
  if (!GetClientRect(hwnd, &client) || !PtInRect(&client, point)) return nullptr;
  for (const auto& control : controls) {
    const RECT area = control->area();
    if (control->isShown() && PtInRect(&area, point)) return control.get();
  }
  return nullptr;
}

LRESULT FormWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (NativeControl* control = controlOf(reinterpret_cast<HWND>(lParam))) control->onCommand(HIWORD(wParam));
      return 0;
    case WM_NOTIFY: {
      const auto& notification = *reinterpret_cast<const NMHDR*>(lParam);
      NativeControl* control = controlOf(notification.hwndFrom);
      return control != nullptr ? control->onNotify(notification) : 0;
    }
    case WM_MENUCOMMAND:
    case WM_INITMENUPOPUP:
      if (onMenu(message, wParam, lParam)) return 0;
      break;
    case WM_GETOBJECT:
      if (*layout.accessibleName == '\0') break;
      if (const auto answer = answerWithName(hwnd, wide(layout.accessibleName), wParam, lParam)) return *answer;
      break;
    case WM_SIZE:
      if (isDialog()) placeControls();
      break;
    case WM_GETMINMAXINFO:
      if (isDialog()) keepLeastSize(*reinterpret_cast<MINMAXINFO*>(lParam));
      break;
    case WM_ACTIVATE:
      onActivate(LOWORD(wParam) != WA_INACTIVE, reinterpret_cast<HWND>(lParam));
      return 0;
    case WM_SETFOCUS:
      if (const NativeControl* control = controlOf(lastFocus); control && control->takesFocus()) {
        SetFocus(lastFocus);
      } else if (isDialog()) {
        moveFocus(nullptr, false);
      }
      return 0;
    case WM_KEYDOWN:
      if (handleNavigation(message, wParam, nullptr)) return 0;
      break;
    case WM_MOUSEMOVE:
      if (pointerMoved(hwnd, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)})) raise(mouseMoved);
      break;
    case WM_MOUSELEAVE:
      pointerLeft();
      break;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
      clickStarted = true;
      return 0;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
      if (std::exchange(clickStarted, false)) raise(clicked);
      return 0;
    case WM_CLOSE:
      raise(closeRequested);
      return 0;
    case WM_WINDOWPOSCHANGING:
      keepPlace(*reinterpret_cast<WINDOWPOS*>(lParam));
      break;
    case WM_SHOWWINDOW:
      if (wParam == FALSE) endModal();
      break;
    case WM_NCPAINT:
      if (frame != FormFrame::popup) break;
      DefWindowProcW(hwnd, message, wParam, lParam);
      paintOutline();
      return 0;
    case WM_NCACTIVATE:
      if (frame != FormFrame::popup) break;
      return DefWindowProcW(hwnd, message, wParam, nothingToRepaint);
    case WM_ERASEBKGND:
      if (paintsControls) return TRUE;
      break;
    case WM_PAINT:
      if (!paintsControls) break;
      paintWithControls();
      return 0;
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
      RedrawWindow(hwnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
      break;
    case WM_NCDESTROY:
      endModal();
      SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
      return DefWindowProcW(std::exchange(hwnd, nullptr), message, wParam, lParam);
    default:
      break;
  }
  return DefWindowProcW(hwnd, message, wParam, lParam);
}

// While a window manager of Wine's desktop takes a new window over, the window seems to lie in the corner of the screen
// for a moment. What believed that would take no click any more where it is seen.
void FormWindow::keepPlace(WINDOWPOS& change) {
  constexpr UINT report = SWP_NOZORDER | SWP_NOACTIVATE;
  constexpr ULONGLONG takingOver = 2000;  // milliseconds
  if ((change.flags & SWP_SHOWWINDOW) != 0) shownAt = GetTickCount64();
  const bool isReport = (change.flags & (report | SWP_NOMOVE)) == report && !InSendMessage();
  const bool isNew = GetTickCount64() - shownAt < takingOver;
  if (isReport && isNew && change.x == 0 && change.y == 0) change.flags |= SWP_NOMOVE;
}

// Who came to one of our forms by keyboard goes on by keyboard in the next one.
void FormWindow::onActivate(bool active, HWND before) {
  if (active) {
    if (const FormWindow* other = formOf(before)) setShowsFocus(other->focusShown);
    // A popup says itself where the keyboard goes.
    if (frame != FormFrame::popup) SetFocus(hwnd);
    raise(activated);
    if (hwnd != nullptr && GetAncestor(GetFocus(), GA_ROOT) != hwnd) SetFocus(hwnd);
  } else {
    rememberFocus();
    raise(deactivated);
  }
}

bool FormWindow::pointerMoved(HWND over, POINT point) {
  if (mouseLeft) {
    TRACKMOUSEEVENT request = {sizeof request, TME_LEAVE, over, 0};
    TrackMouseEvent(&request);
  }
  ClientToScreen(over, &point);
  const bool isSame = lastPointer && lastPointer->x == point.x && lastPointer->y == point.y;
  lastPointer = point;
  return !isSame;
}

void FormWindow::pointerLeft() {
  POINT pointer = {};
  GetCursorPos(&pointer);
  const HWND under = WindowFromPoint(pointer);
  POINT inside = pointer;
  ScreenToClient(hwnd, &inside);
  RECT client = {};
  GetClientRect(hwnd, &client);
  // Of its frame the form is told no moves.
  if (IsChild(hwnd, under) || (under == hwnd && PtInRect(&client, inside))) return;
  lastPointer.reset();
  raise(mouseLeft);
}

// A control may have windows of its own, which come and go.
void FormWindow::rememberFocus() {
  HWND focus = GetFocus();
  if (!IsChild(hwnd, focus)) return;
  while (GetParent(focus) != hwnd) focus = GetParent(focus);
  lastFocus = focus;
}

}  // namespace nerida

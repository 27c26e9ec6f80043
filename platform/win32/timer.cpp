#include "platform/win32/timer.h"

#include "platform/win32/form_window.h"

namespace nerida {
namespace {

constexpr UINT_PTR formTimer = 0x4E54;

// The system's timer goes with the window, so there is a form while this is called; in front of it may stand another
// procedure, which need not know our timers.
void CALLBACK onTimer(HWND window, UINT, UINT_PTR, DWORD) {
  auto* form = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (form == nullptr) return;
  form->dispatch([form]() -> LRESULT {
    form->raise(form->timer().elapsed);
    return 0;
  });
}

}  // namespace

void SystemTimer::setInterval(int milliseconds) {
  interval = static_cast<unsigned>(milliseconds);
  if (isOn) SetTimer(form.window(), formTimer, interval, onTimer);
}

void SystemTimer::setEnabled(bool enabled) {
  if (isOn == enabled) return;
  if (enabled) {
    isOn = SetTimer(reinterpret_cast<HWND>(form.handle()), formTimer, interval, onTimer) != 0;
  } else {
    isOn = false;
    if (form.window() != nullptr) KillTimer(form.window(), formTimer);
  }
}

}  // namespace nerida

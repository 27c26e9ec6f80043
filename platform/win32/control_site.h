#pragma once

#include <windows.h>

#include <oleidl.h>

#include <memory>

#include "platform/win32/com.h"

namespace nerida {

// An ActiveX control inside a window of ours. Errors: 429 when there is no such control or it cannot be shown.
class HostedControl {
 public:
  HostedControl(HWND parent, const wchar_t* progId, const RECT& area);
  ~HostedControl();
  HostedControl(const HostedControl&) = delete;
  HostedControl& operator=(const HostedControl&) = delete;

  void place(const RECT& area);  // in the parent's client area
  ComPtr<IDispatch> dispatch() const { return automation; }
  HWND window() const;  // of the control, null while it has none

 private:
  class Site;

  void show(HWND parent, const RECT& area);

  ComPtr<IOleObject> control;
  ComPtr<IDispatch> automation;
  ComPtr<Site> site;
};

}  // namespace nerida

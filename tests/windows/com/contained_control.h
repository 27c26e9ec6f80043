#pragma once

#include <ole2.h>

#include <string>

#include "platform/win32/com.h"

namespace nerida {

// A window with a control in the system's own control container.
class ContainedControl {
 public:
  explicit ContainedControl(const std::wstring& programId);
  ~ContainedControl();
  ContainedControl(const ContainedControl&) = delete;
  ContainedControl& operator=(const ContainedControl&) = delete;

  // The control's automation interface; null when there is none.
  ComPtr<IDispatch> automation() const;
  HWND window() const { return frame; }

 private:
  HWND frame;
  HWND site;
};

}  // namespace nerida

#pragma once

#include "platform/win32/native_control.h"

namespace nerida {

class SystemPushButton final : public ControlOf<Button> {
 public:
  using ControlOf::ControlOf;
  void create() override;

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void onCommand(WORD notification) override;
  bool takesFocus() const override;
};

}  // namespace nerida

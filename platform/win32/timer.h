#pragma once

#include "platform/timer.h"

namespace nerida {

class FormWindow;

class SystemTimer final : public Timer {
 public:
  explicit SystemTimer(FormWindow& owner) : form(owner) {}
  void setInterval(int milliseconds) override;
  void setEnabled(bool enabled) override;
  bool isEnabled() const override { return isOn; }

 private:
  FormWindow& form;
  unsigned interval = 0;
  bool isOn = false;
};

}  // namespace nerida

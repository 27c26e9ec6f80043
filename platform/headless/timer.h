#pragma once

#include "platform/headless/transcript.h"
#include "platform/timer.h"

namespace nerida::headless {

// A timer whose time passes when a test says so.
class Clock : public Timer {
 public:
  Clock(Transcript& transcript, std::string form) : transcript(transcript), form(std::move(form)) {}

  void setInterval(int value) override { milliseconds = value; }
  void setEnabled(bool value) override {
    if (enabled != value) transcript.add(form + (value ? ": timer on" : ": timer off"));
    enabled = value;
  }
  bool isEnabled() const override { return enabled; }

  // So many intervals pass.
  void pass(int intervals) const {
    for (int i = 0; i < intervals && enabled; ++i) {
      if (elapsed) elapsed();
    }
  }

  void stopWithItsForm() { enabled = false; }

  int milliseconds = 0;

 private:
  Transcript& transcript;
  std::string form;
  bool enabled = false;
};

}  // namespace nerida::headless

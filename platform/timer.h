#pragma once

#include <functional>

namespace nerida {

// The one timer of a form. It is off to begin with, and when its form is destroyed.
class Timer {
 public:
  virtual ~Timer() = default;
  virtual void setInterval(int milliseconds) = 0;
  virtual void setEnabled(bool enabled) = 0;  // turned on, it counts from now; on already, it goes on counting
  virtual bool isEnabled() const = 0;

  std::function<void()> elapsed;  // every interval, while the program waits for messages
};

}  // namespace nerida

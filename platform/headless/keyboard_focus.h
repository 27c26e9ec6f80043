#pragma once

#include <functional>
#include <utility>

namespace nerida::headless {

// Which control has the keyboard focus, and whether the windows show it.
struct KeyboardFocus {
  const void* holder = nullptr;
  bool isShown = false;

  // Who has it loses it first; nothing happens when it stays where it is. Tells whether it came.
  bool give(const void* control, std::function<void()> lost) {
    if (holder == control) return false;
    take();
    holder = control;
    onLost = std::move(lost);
    return true;
  }
  void take() {
    if (std::exchange(holder, nullptr) == nullptr) return;
    if (const auto lost = std::exchange(onLost, nullptr)) lost();
  }
  // The control is gone, without an event.
  void forget(const void* control) {
    if (holder == control) holder = nullptr;
  }

 private:
  std::function<void()> onLost;
};

}  // namespace nerida::headless

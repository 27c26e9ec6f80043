#pragma once

#include <span>

#include "platform/button_bar.h"

namespace nerida {

// One button of the toolbar. The leading number of a bitmap spec is the button's kind: 6 for the buttons that the
// toolbar latches down while their popup or group is open, 5 for plain ones.
struct ButtonRow {
  const char* bar;
  int index;  // of the bar in its control array
  const char* key;
  const char* bitmapSpec;
  const char* tooltip;
  const char* caption;
};

// The buttons of one bar, in the order in which they are added.
std::span<const ButtonRow> buttonsOf(const char* bar, int index);

}  // namespace nerida

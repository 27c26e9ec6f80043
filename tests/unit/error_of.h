#pragma once

#include <cstdint>

#include "platform/error.h"

namespace nerida {

// The number of the error in which an action ends, 0 where there is none.
template <class Action>
std::int32_t errorOf(Action action) {
  try {
    action();
  } catch (const Error& failure) {
    return failure.number;
  }
  return 0;
}

}  // namespace nerida

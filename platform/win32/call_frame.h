#pragma once

#include <oaidl.h>
#include <windows.h>

#include <deque>
#include <span>
#include <vector>

#include "platform/automation.h"
#include "platform/win32/com.h"

namespace nerida {

enum class ReferenceForm { typed, variant };

// The arguments of one call in the form in which they cross: reversed, the references pointing at storage in here.
class CallFrame {
 public:
  explicit CallFrame(std::span<Argument> arguments);

  std::span<VARIANT> arguments(ReferenceForm form);
  bool hasReferences() const;
  // Stores what the object left in the references into the caller's variables.
  void writeBack();

 private:
  VARIANT crossing(std::size_t index, ReferenceForm form);

  std::span<Argument> source;
  std::deque<Variant> storage;  // in the order of source; addresses must not change
  std::vector<VARIANT> reversed;
};

}  // namespace nerida

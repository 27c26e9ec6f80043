#pragma once

#include "platform/window.h"

namespace nerida {

// Makes forms as windows of the system, of the thread that asks.
class SystemWindowFactory final : public WindowFactory {
 public:
  std::shared_ptr<Window> create(const FormLayout& layout) override;
};

}  // namespace nerida

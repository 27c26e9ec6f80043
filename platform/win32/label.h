#pragma once

#include "platform/win32/native_control.h"

namespace nerida {

class SystemLabel final : public ControlOf<Label> {
 public:
  SystemLabel(FormWindow& owner, const ControlLayout& row);
  void setCaption(const std::string& text) override;
};

}  // namespace nerida

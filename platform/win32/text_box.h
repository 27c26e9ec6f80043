#pragma once

#include "platform/win32/native_control.h"

namespace nerida {

class SystemTextBox final : public ControlOf<TextBox> {
 public:
  using ControlOf::ControlOf;
  void create() override;

  std::string text() const override;
  void setText(const std::string& text) override;

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  bool takesFocus() const override;
  void centreText(RECT& client);
  void paintMargins() const;

  int marginAbove = 0;  // pixels between the edge and the line of text
  int marginBelow = 0;
};

}  // namespace nerida

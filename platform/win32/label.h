#pragma once

#include "platform/win32/handles.h"
#include "platform/win32/native_control.h"

namespace nerida {

class SystemLabel final : public ControlOf<Label> {
 public:
  using ControlOf::ControlOf;
  void create() override;
  void setCaption(const std::string& text) override;
  void setBackground(Rgb color) override;

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  bool hasMouse() const { return mouseMove || mouseDown || mouseUp || click; }
  void onButtonUp(POINT point);
  void draw(HDC target) override;
  void onHidden() override;

  UniqueBrush background;  // of its own; none for the desktop's
};

}  // namespace nerida

#pragma once

#include "platform/win32/native_control.h"

namespace nerida {

class SystemPictureBox final : public ControlOf<PictureBox> {
 public:
  SystemPictureBox(FormWindow& owner, const ControlLayout& row);
  void repaint() override;

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void draw(HDC target);

  bool clickStarted = false;
};

}  // namespace nerida

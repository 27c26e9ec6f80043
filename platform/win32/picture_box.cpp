#include "platform/win32/picture_box.h"

#include <utility>

#include "platform/win32/canvas.h"
#include "platform/win32/form_window.h"
#include "platform/win32/paint_scope.h"

namespace nerida {

SystemPictureBox::SystemPictureBox(FormWindow& owner, const ControlLayout& row) : ControlOf(owner, row) {
  createOwn(pictureBoxClass, 0);
}

void SystemPictureBox::repaint() { InvalidateRect(window(), nullptr, TRUE); }

// The drawing keeps its size; where the box is lower than it was laid out, its middle is seen.
void SystemPictureBox::draw(HDC target) {
  const int lost = form().scale().pixelsY(layout().bounds.height) - static_cast<int>(size().cy);
  POINT origin = {};
  OffsetViewportOrgEx(target, 0, -lost / 2, &origin);
  SystemCanvas canvas(target, form().scale());
  form().raise(paint, static_cast<Canvas&>(canvas));
  SetViewportOrgEx(target, origin.x, origin.y, nullptr);
}

LRESULT SystemPictureBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT: {
      const PaintScope painting(window());
      draw(painting.dc());
      return 0;
    }
    case WM_PRINTCLIENT:
      draw(reinterpret_cast<HDC>(wParam));
      return 0;
    case WM_LBUTTONDOWN:
      clickStarted = true;
      break;
    case WM_LBUTTONUP:
      if (std::exchange(clickStarted, false)) form().raise(form().clicked);
      break;
    default:
      break;
  }
  return ControlOf::onMessage(message, wParam, lParam);
}

}  // namespace nerida

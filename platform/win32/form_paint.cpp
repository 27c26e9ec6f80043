// How a popup is painted: with all its controls in one go. A dozen windows that were painted one after the other would
// take several times as long, and one could see them come.
#include "platform/win32/form_window.h"
#include "platform/win32/paint_scope.h"

namespace nerida {
namespace {

// Within one of these the context draws a part of the form as if it were a window of its own.
class PartOfForm {
 public:
  PartOfForm(HDC context, const RECT& area) : dc(context), saved(SaveDC(dc)) {
    IntersectClipRect(dc, area.left, area.top, area.right, area.bottom);
    OffsetViewportOrgEx(dc, area.left, area.top, nullptr);
  }
  ~PartOfForm() { RestoreDC(dc, saved); }
  PartOfForm(const PartOfForm&) = delete;
  PartOfForm& operator=(const PartOfForm&) = delete;

 private:
  HDC dc;
  int saved;
};

}  // namespace

void FormWindow::paintWithControls() {
  const PaintScope painting(hwnd);
  RECT client = {};
  GetClientRect(hwnd, &client);
  drawControls(painting.dc());
  FillRect(painting.dc(), &client, GetSysColorBrush(COLOR_BTNFACE));
  // What was painted in part is painted by its own window as well: that may have had more to paint.
  if (!EqualRect(&painting.area(), &client)) return;
  RedrawWindow(hwnd, nullptr, nullptr, RDW_VALIDATE | RDW_NOERASE | RDW_NOFRAME | RDW_ALLCHILDREN);
}

// The topmost first, and nothing over it: every pixel is painted once.
void FormWindow::drawControls(HDC target) {
  for (const auto& control : controls) {
    if (!control->isShown()) continue;
    const RECT area = control->area();
    {
      const PartOfForm part(target, area);
      control->draw(target);
    }
    ExcludeClipRect(target, area.left, area.top, area.right, area.bottom);
  }
}

// The system's thin frame is lit from the top left and nearly white there on pale desktops: over a white page a popup
// would have only two sides.
void FormWindow::paintOutline() {
  const HDC dc = GetWindowDC(hwnd);
  if (dc == nullptr) return;
  const Size size = sizeInPixels();
  const RECT outline = {0, 0, size.width, size.height};
  FrameRect(dc, &outline, GetSysColorBrush(COLOR_BTNSHADOW));
  ReleaseDC(hwnd, dc);
}

}  // namespace nerida

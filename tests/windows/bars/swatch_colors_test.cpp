// The swatches are drawn in the colours of the desktop, whatever they are at the moment.
#include <cmath>
#include <utility>

#include "tests/windows/bars/fixture.h"

namespace nerida {
namespace {

class SwatchColors : public ToolbarOnScreen {
 protected:
  void SetUp() override {
    ToolbarOnScreen::SetUp();
    form->pictureBox("picLineThick").setVisible(true);
    pump();
  }
  // What is on the screen inside the thickest line, and just right of it.
  std::pair<COLORREF, COLORREF> seen() {
    const HWND box = windowOf(form->pictureBox("picLineThick"));
    const double pixel = screenDpi() / 1440.0;
    const auto at = [&](int twips) { return static_cast<int>(std::lround(twips * pixel)); };
    const HDC dc = GetDC(box);
    const std::pair colors(GetPixel(dc, at(165), at(217)), GetPixel(dc, at(285), at(232)));
    ReleaseDC(box, dc);
    return colors;
  }
};

TEST_F(SwatchColors, AreTheDesktopsShadowAndHighlight) {
  EXPECT_EQ(seen(), std::pair(GetSysColor(COLOR_BTNSHADOW), GetSysColor(COLOR_BTNHIGHLIGHT)));
}

TEST_F(SwatchColors, FollowTheDesktopAtOnce) {
  const COLORREF red = RGB(200, 10, 20);
  const COLORREF blue = RGB(10, 20, 200);
  {
    const OtherColors scheme({COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT}, {red, blue});
    EXPECT_EQ(seen(), std::pair(red, blue));
  }
  EXPECT_EQ(seen(), std::pair(GetSysColor(COLOR_BTNSHADOW), GetSysColor(COLOR_BTNHIGHLIGHT)));
}

}  // namespace
}  // namespace nerida

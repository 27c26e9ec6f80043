// What the buttons show can be told from a dark desktop too.
#include <algorithm>

#include "tests/windows/bars/fixture.h"

namespace nerida {
namespace {

struct Place {
  const char* bar;
  int index;
  int button;
};

// Buttons are about as wide as high where they have no caption, and so is the picture where they have one.
constexpr Place pictures[] = {{"barMB", 0, 0},   {"barLS", 0, 0},    {"barLS", 1, 0},    {"barLS", 2, 0},
                              {"barLS", 3, 0},   {"barWorld", 0, 0}, {"barWorld", 1, 0}, {"barWorld", 2, 0},
                              {"barMove", 0, 0}, {"barMove", 0, 1},  {"barMove", 1, 0},  {"barMove", 1, 3},
                              {"barMove", 2, 0}, {"barMove", 2, 5},  {"barMove", 3, 0}};

class DarkDesktop : public ToolbarOnScreen {
 protected:
  void SetUp() override {
    folder = PICTURES_FOLDER;
    ToolbarOnScreen::SetUp();
  }

  // The strongest of the three colours of any pixel of a picture.
  int brightest(const Place& picture) {
    const HWND window = bar(picture.bar, picture.index);
    RECT area = {};
    GetClientRect(window, &area);
    const HDC dc = GetDC(window);
    int found = 0;
    for (int y = 0; y < area.bottom; ++y) {
      for (int x = picture.button * area.bottom; x < (picture.button + 1) * area.bottom; ++x) {
        const COLORREF color = GetPixel(dc, x, y);
        found = std::max({found, int{GetRValue(color)}, int{GetGValue(color)}, int{GetBValue(color)}});
      }
    }
    ReleaseDC(window, dc);
    return found;
  }

  const OtherColors dark{{COLOR_BTNFACE, COLOR_BTNTEXT, COLOR_GRAYTEXT},
                         {RGB(0, 0, 0), RGB(255, 255, 255), RGB(0, 255, 0)}};
};

TEST_F(DarkDesktop, ShowsEveryPicture) {
  for (const Place& picture : pictures) {
    EXPECT_GT(brightest(picture), 150) << picture.bar << picture.index << " " << picture.button;
  }
}

TEST_F(DarkDesktop, ShowsThemInTheColourOfWhatCannotBeUsed) {
  for (const Place& picture : pictures) form->buttonBar(picture.bar, picture.index).setEnabled(false);
  pump();
  for (const Place& picture : pictures) {
    EXPECT_GT(brightest(picture), 120) << picture.bar << picture.index << " " << picture.button;
  }
}

}  // namespace
}  // namespace nerida

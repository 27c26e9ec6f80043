// Where the popups hang: below their buttons, above at the screen's lower edge, to the left at its right edge.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;

// The toolbar's client area begins 3 pixels right of and 22 below its corner; one pixel is 15 twips.
class PopupPlacement : public DeskTest {
 protected:
  void placeAt(std::int16_t x, std::int16_t y) {
    enableStyleButtons();
    createAndInit();
    show(x, y);
    for (Popup* popup : popups()) popup->load();
    take();
  }
  std::vector<Popup*> popups() {
    return {&library.lineColors, &library.surfaceColors, &library.backgroundColors, &library.lighting,
            &library.animation};
  }
  Point shownAt(const std::string& name) { return form(name).position(); }
  Point openStyle(int index, const char* key, const char* name) {
    bar("barLS", index).press(key);
    return shownAt(name);
  }
  Point openLighting() {
    bar("barWorld").press("Lighting");
    return shownAt("frmLighting");
  }
  Point barCorner(const char* name, int index) {
    const Bounds place = bar(name, index).bounds();
    return {place.left.value / 15, place.top.value / 15};
  }
};

TEST_F(PopupPlacement, AStylePopupHangsExactlyUnderItsBar) {
  placeAt(100, 200);
  const Point corner = barCorner("barLS", 2);
  EXPECT_EQ(openStyle(2, "SurfaceColorFill", "frmSurfaceColors"),
            (Point{100 + 3 + corner.x, 200 + 22 + corner.y + 25}));
}

TEST_F(PopupPlacement, AStylePopupGoesAboveWhenItWouldRunOffTheBottom) {
  placeAt(100, 200);
  const Size popup = library.surfaceColors.sizeInPixels();
  const std::int32_t below = 200 + 22 + barCorner("barLS", 2).y + 25;
  platform.screen.size.height = below + popup.height;
  EXPECT_EQ(openStyle(2, "SurfaceColorFill", "frmSurfaceColors").y, below);
  library.surfaceColors.HideSelf();
  --platform.screen.size.height;
  EXPECT_EQ(openStyle(2, "SurfaceColorFill", "frmSurfaceColors").y, below - popup.height - 25);
}

TEST_F(PopupPlacement, AStylePopupIsShiftedLeftByWhatWouldRunOffTheRight) {
  placeAt(100, 200);
  const Size popup = library.surfaceColors.sizeInPixels();
  const std::int32_t left = 100 + 3 + barCorner("barLS", 2).x;
  platform.screen.size.width = left + popup.width;
  EXPECT_EQ(openStyle(2, "SurfaceColorFill", "frmSurfaceColors").x, left);
  library.surfaceColors.HideSelf();
  platform.screen.size.width -= 7;
  EXPECT_EQ(openStyle(2, "SurfaceColorFill", "frmSurfaceColors").x, left - 7);
}

TEST_F(PopupPlacement, AStylePopupOnAScreenToTheRightComesBackToTheFirstOne) {
  placeAt(1500, 200);
  const Size popup = library.lineColors.sizeInPixels();
  EXPECT_EQ(openStyle(1, "LineColorFill", "frmLineColors").x, platform.screen.size.width - popup.width);
}

TEST_F(PopupPlacement, AStylePopupOnAScreenBelowGoesAboveItsButton) {
  placeAt(100, 900);
  const Size popup = library.lineColors.sizeInPixels();
  EXPECT_EQ(openStyle(1, "LineColorFill", "frmLineColors").y, 900 + 22 + barCorner("barLS", 1).y - popup.height);
}

TEST_F(PopupPlacement, TheThicknessMenuFollowsTheSameRule) {
  placeAt(100, 200);
  const Point corner = barCorner("barLS", 0);
  EXPECT_EQ(openStyle(0, "LineThickness", "frmLineThicknessMenu"),
            (Point{100 + 3 + corner.x, 200 + 22 + corner.y + 25}));
  library.lineThicknessMenu.HideSelf();
  const Size popup = library.lineThicknessMenu.sizeInPixels();
  platform.screen.size = {100 + 3 + corner.x + popup.width - 5, 200 + 22 + corner.y + 25 + popup.height - 1};
  EXPECT_EQ(openStyle(0, "LineThickness", "frmLineThicknessMenu"),
            (Point{100 + 3 + corner.x - 5, 200 + 22 + corner.y - popup.height}));
}

TEST_F(PopupPlacement, LightingHangsALittleToTheLeftOfItsBar) {
  placeAt(100, 200);
  const Point corner = barCorner("barWorld", 0);
  EXPECT_EQ(openLighting(), (Point{100 + 3 + corner.x - 23, 200 + 22 + corner.y + 25}));
}

TEST_F(PopupPlacement, LightingIsPulledLeftWhereItHasLessThan345Pixels) {
  placeAt(100, 200);
  const std::int32_t left = 100 + 3 + barCorner("barWorld", 0).x;
  platform.screen.size.width = left + 345;
  EXPECT_EQ(openLighting().x, left - 23);
  library.lighting.HideSelf();
  platform.screen.size.width = left + 344;
  EXPECT_EQ(openLighting().x, left - 1);
  library.lighting.HideSelf();
  platform.screen.size.width = left - 55;  // the toolbar is on a screen to the right
  EXPECT_EQ(openLighting().x, left - 400);
}

TEST_F(PopupPlacement, LightingGoesAboveWhenItWouldRunOffTheBottom) {
  placeAt(100, 200);
  const Size popup = library.lighting.sizeInPixels();
  const std::int32_t below = 200 + 22 + barCorner("barWorld", 0).y + 25;
  platform.screen.size.height = below + popup.height;
  EXPECT_EQ(openLighting().y, below);
  library.lighting.HideSelf();
  --platform.screen.size.height;
  EXPECT_EQ(openLighting().y, below - popup.height - 25);
}

TEST_F(PopupPlacement, AnimationHangsLowerAndIsNeverMoved) {
  placeAt(100, 200);
  platform.screen.size = {1, 1};
  const Point corner = barCorner("barWorld", 0);
  bar("barWorld").buttonPress("Animation");
  EXPECT_EQ(shownAt("frmAnimation"), (Point{100 + 3 + corner.x, 200 + 22 + corner.y + 25 + 40}));
}

TEST_F(PopupPlacement, HalfPixelsGoToTheEvenNeighbour) {
  placeAt(100, 200);
  const Bounds place = bar("barLS", 2).bounds();
  library.state.gTwipsPerPixelX = 2 * place.left.value;  // half a pixel
  EXPECT_EQ(openStyle(2, "SurfaceColorFill", "frmSurfaceColors").x, 104);
  library.surfaceColors.HideSelf();
  library.toolbar.ShowSelf();
  toolbar().showTopmostAt({101, 200});
  EXPECT_EQ(openStyle(2, "SurfaceColorFill", "frmSurfaceColors").x, 104);
}

TEST_F(PopupPlacement, APlaceBeyond16BitsIsAnErrorAndOpensNothing) {
  placeAt(32700, 200);
  platform.screen.size.width = 100000;
  answerBoxes(1);
  bar("barLS", 2).press("SurfaceColorFill");
  EXPECT_THAT(take(), ElementsAre(errorBox));
  EXPECT_FALSE(library.surfaceColors.isVisible());
}

TEST_F(PopupPlacement, LeftOfTheScreenNothingIsCorrected) {
  placeAt(-500, -100);
  const Point corner = barCorner("barLS", 1);
  EXPECT_EQ(openStyle(1, "LineColorFill", "frmLineColors"), (Point{-500 + 3 + corner.x, -100 + 22 + corner.y + 25}));
}

}  // namespace
}  // namespace nerida

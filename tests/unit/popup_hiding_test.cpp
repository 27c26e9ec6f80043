// Popups as windows: shown, closed once, and closed together in the order of their places.
#include "core/popup_hiding.h"

#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PopupHiding : public DeskTest {
 protected:
  void SetUp() override { createAndInit(); }
};

TEST_F(PopupHiding, WithNoPopupShownMakesNoCall) {
  HideAllPopups(library.state);
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(PopupHiding, WalksUpwardsFromThePopupsToTheCatalogAndSparesTheToolbar) {
  show();
  control->ShowCatalog();
  show();
  Popup* const popups[] = {&library.lighting,      &library.animation,  &library.backgroundColors,
                           &library.surfaceColors, &library.lineColors, &library.lineThicknessMenu};
  for (Popup* popup : popups) showBeside(*popup);
  take();
  HideAllPopups(library.state);
  Lines hides = take();
  std::erase_if(hides, [](const std::string& line) { return !line.ends_with(": hide"); });
  EXPECT_THAT(hides,
              ElementsAre("frmLineThicknessMenu: hide", "frmLineColors: hide", "frmSurfaceColors: hide",
                          "frmBackgroundColors: hide", "frmAnimation: hide", "frmLighting: hide", "frmBrowser: hide"));
  EXPECT_TRUE(toolbar().isVisible());
  EXPECT_TRUE(library.state.gFormShown[toolbarIndex]);
}

TEST_F(PopupHiding, AnErrorEndsTheWalkAndReachesTheCaller) {
  for (int i = 0; i < 32768; ++i) library.toolbar.KillChild();
  library.lineThicknessMenu.ShowSelf(1, 1);
  library.lighting.ShowSelf(1, 1);
  EXPECT_THROW(HideAllPopups(library.state), Error);
  EXPECT_TRUE(form("frmLighting").isVisible());
}

TEST_F(PopupHiding, TheToolbarReportsACountOfPopupsThatOverflows) {
  show();
  for (int i = 0; i < 32768; ++i) library.toolbar.KillChild();
  library.lineThicknessMenu.ShowSelf(1, 1);
  take();
  answerBoxes(1);
  toolbar().userCloses();
  EXPECT_THAT(take(), ElementsAre("frmLineThicknessMenu: hide", errorBox));
  EXPECT_TRUE(toolbar().isVisible());
}

struct PopupCase {
  const char* name;
  std::size_t index;
  Popup& (*popup)(Library&);
  Lines released;  // what follows the foreground
};

void PrintTo(const PopupCase& popup, std::ostream* out) { *out << popup.name; }

class PopupLife : public testing::TestWithParam<PopupCase>, protected Desk {
 protected:
  Popup& popup() { return GetParam().popup(library); }
  std::string line(const std::string& what) const { return std::string(GetParam().name) + ": " + what; }
};

TEST_P(PopupLife, ShowsTopmostAndMarksItself) {
  createAndInit();
  popup().load();
  take();
  popup().ShowSelf(-7, 300);
  EXPECT_THAT(take(), testing::Contains(line("show topmost at (-7, 300)")));
  EXPECT_TRUE(library.state.gFormLoaded[GetParam().index]);
  EXPECT_TRUE(library.state.gFormShown[GetParam().index]);
  EXPECT_TRUE(popup().isVisible());
}

TEST_P(PopupLife, ClosesOnceAndReleasesItsButton) {
  createAndInit();
  popup().ShowSelf(1, 1);
  take();
  popup().HideSelf();
  Lines expected = {line("hide"), foregroundLine()};
  expected.insert(expected.end(), GetParam().released.begin(), GetParam().released.end());
  EXPECT_EQ(take(), expected);
  EXPECT_FALSE(library.state.gFormShown[GetParam().index]);
  popup().HideSelf();
  EXPECT_THAT(take(), IsEmpty());
  popup().ShowSelf(1, 1);
  take();
  popup().HideSelf();
  EXPECT_EQ(take(), expected);
}

TEST_P(PopupLife, CountsOnceAsClosed) {
  createAndInit();
  for (int i = 0; i < 32767; ++i) library.toolbar.KillChild();
  popup().ShowSelf(1, 1);
  popup().HideSelf();  // the last one that can be counted
  popup().HideSelf();
  popup().ShowSelf(1, 1);
  EXPECT_THROW(popup().HideSelf(), Error);
}

TEST_P(PopupLife, ThatCannotBeLoadedStaysQuietAndUnmarked) {
  createAndInit();
  popup().unload();
  platform.windows.creationFailures[GetParam().name] = error::outOfMemory;
  take();
  if (GetParam().index == animationIndex) {
    EXPECT_THROW(popup().ShowSelf(1, 1), Error);  // the toolbar reports it
  } else {
    popup().ShowSelf(1, 1);
    EXPECT_THAT(take(), IsEmpty());
  }
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_FALSE(library.state.gFormShown[GetParam().index]);
  EXPECT_FALSE(library.state.gFormLoaded[GetParam().index]);
}

TEST_P(PopupLife, GoesWithItsMarksWhenUnloaded) {
  createAndInit();
  popup().ShowSelf(1, 1);
  popup().unload();
  EXPECT_FALSE(library.state.gFormShown[GetParam().index]);
  EXPECT_FALSE(library.state.gFormLoaded[GetParam().index]);
  EXPECT_EQ(platform.windows.find(GetParam().name), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Popups, PopupLife,
    testing::Values(
        PopupCase{"frmLineThicknessMenu",
                  1,
                  [](Library& l) -> Popup& { return l.lineThicknessMenu; },
                  {"barLS(0): LineThickness state 0"}},
        PopupCase{
            "frmLineColors", 2, [](Library& l) -> Popup& { return l.lineColors; }, {"barLS(1): LineColorFill state 0"}},
        PopupCase{"frmSurfaceColors",
                  4,
                  [](Library& l) -> Popup& { return l.surfaceColors; },
                  {"barLS(2): SurfaceColorFill state 0"}},
        PopupCase{"frmBackgroundColors",
                  6,
                  [](Library& l) -> Popup& { return l.backgroundColors; },
                  {"barLS(3): Background state 0"}},
        PopupCase{"frmAnimation", 8, [](Library& l) -> Popup& { return l.animation; }, {}},
        PopupCase{
            "frmLighting", 9, [](Library& l) -> Popup& { return l.lighting; }, {"barWorld(0): Lighting state 0"}}));

}  // namespace
}  // namespace nerida

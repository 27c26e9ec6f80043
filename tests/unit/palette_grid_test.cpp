// The grid of a palette: the cell under the pointer, the frame, the ring of recent colours, and what is drawn.
#include "tests/unit/palette_desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PaletteGrid : public testing::Test, protected PaletteDesk {
 protected:
  void SetUp() override { showPalette(roles[2]); }
  // What a press chooses where the pointer has not moved.
  std::string hoveredByPress() {
    take();
    panel().pressAt({0}, {0});
    return events();
  }
};

TEST_F(PaletteGrid, EveryNamedColorButBlackIsFramedWhenItIsTheModels) {
  for (int i = 0; i < 40; ++i) {
    explicitColor(namedColors[static_cast<std::size_t>(i)].color);
    library.recentColors.PrevColor.fill(1);
    palette().unload();
    palette().ShowSelf(0, 0);
    if (i == 0) {
      EXPECT_THAT(frame(), IsEmpty());
    } else {
      EXPECT_EQ(frame()[0], 120 + i % 8 * 270) << i;
      EXPECT_EQ(frame()[1], 525 + i / 8 * 270 + 15) << i;
    }
  }
}

TEST_F(PaletteGrid, BlackFramesTheFirstOfTheUnusedSlotsAndTheLastOneIsSelected) {
  explicitColor(0);
  palette().ShowSelf(0, 0);
  EXPECT_THAT(frame(), ElementsAre(120, 2040, 375, 2295));
  const std::vector<DrawnPart> parts = panel().parts();
  EXPECT_TRUE(parts[47].pressed);
  EXPECT_FALSE(parts[40].pressed);
}

TEST_F(PaletteGrid, AColorOfBothGroupsFramesTheNamedOne) {
  library.recentColors.PrevColor[2] = 255;
  explicitColor(255);
  palette().ShowSelf(0, 0);
  EXPECT_THAT(frame(), ElementsAre(120, 525 + 540 + 15, 375, 525 + 810));
}

TEST_F(PaletteGrid, ARecentColorIsFramedInItsLowerRow) {
  library.recentColors.PrevColor = {1, 2, 3, 4, 5, 6, 7, 8};
  explicitColor(4);
  palette().ShowSelf(0, 0);
  EXPECT_THAT(frame(), ElementsAre(120 + 3 * 270, 2040, 120 + 4 * 270 - 15, 2310 - 15));
}

TEST_F(PaletteGrid, TheFrameGoesWhenThePaletteCloses) {
  explicitColor(255);
  open();
  ASSERT_FALSE(frame().empty());
  window().userCloses();
  EXPECT_THAT(frame(), IsEmpty());
}

TEST_F(PaletteGrid, OpensWithoutTheFrameOfAnOpeningThatTheModelCutShort) {
  explicitColor(255);
  model->hooks[role->color] = [this] { control->ToolbarHide(); };
  open();
  ASSERT_FALSE(palette().isVisible());
  model->hooks.clear();
  show();
  model->values[role->isDefault] = true;
  open();
  EXPECT_THAT(frame(), IsEmpty());
}

TEST_F(PaletteGrid, LoadedAnewHasForgottenItsSelectionAndItsFrame) {
  library.recentColors.PrevColor[0] = 77;
  open();
  choose(1, 0);
  explicitColor(255);
  open();
  palette().unload();
  palette().load();
  EXPECT_THAT(frame(), IsEmpty());
  explicitColor(77);
  palette().ShowSelf(0, 0);
  EXPECT_THAT(frame(), ElementsAre(120, 2040, 375, 2295)) << "no named colour keeps the recent ones from being found";
}

TEST_F(PaletteGrid, ForgetsTheCellThatWasUnderThePointerWhenItClosed) {
  open();
  moveToCell(1, 1);
  window().userCloses();
  open();
  panel().pressAt({0}, {0});
  EXPECT_EQ(events(), "");
  moveToCell(1, 1);
  EXPECT_THAT(frame(), testing::Not(IsEmpty()));
}

TEST_F(PaletteGrid, APreselectedCellIsChosenByAPressWithoutAMove) {
  explicitColor(255);
  palette().ShowSelf(0, 0);
  take();
  panel().pressAt({1}, {1});
  EXPECT_EQ(events(), let("255&") + closing());
}

TEST_F(PaletteGrid, AnEarlierNamedSelectionHidesTheRecentColors) {
  library.recentColors.PrevColor[0] = 77;
  open();
  choose(1, 0);
  explicitColor(77);
  open();
  EXPECT_THAT(frame(), IsEmpty());
  window().picture("picLSSwatch").pressAt({0}, {0});
  open();
  EXPECT_THAT(frame(), ElementsAre(120, 2040, 375, 2295));
}

struct HitCase {
  std::int32_t x, y;  // from the grid's corner
  int index;          // -1: none
};

void PrintTo(const HitCase& hit, std::ostream* out) { *out << hit.x << ", " << hit.y; }

class PaletteHit : public testing::TestWithParam<HitCase>, protected PaletteDesk {};

TEST_P(PaletteHit, IsTheCellUnderThePointer) {
  showPalette(roles[2]);
  library.recentColors.PrevColor = {1, 2, 3, 4, 5, 6, 7, 8};
  open();
  moveToCell(4, 4);
  moveTo(120 + GetParam().x, 525 + GetParam().y);
  EXPECT_EQ(frame().empty(), GetParam().index < 0);
  take();
  panel().pressAt({0}, {0});
  const int index = GetParam().index;
  const std::string expected =
      index < 0
          ? ""
          : let(std::to_string(index < 40 ? namedColors[static_cast<std::size_t>(index)].color : index - 39) + "&") +
                closing();
  EXPECT_EQ(events(), expected);
}

INSTANTIATE_TEST_SUITE_P(Points, PaletteHit,
                         testing::Values(HitCase{0, 0, 0}, HitCase{-1, 0, -1}, HitCase{0, -1, -1}, HitCase{269, 269, 0},
                                         HitCase{270, 269, 1}, HitCase{269, 270, 8}, HitCase{2159, 0, 7},
                                         HitCase{2160, 0, -1}, HitCase{0, 1335, 32}, HitCase{0, 1336, -1},
                                         HitCase{0, 1400, -1}, HitCase{0, 1514, -1}, HitCase{0, 1515, 40},
                                         HitCase{0, 1619, 40}, HitCase{0, 1620, 40}, HitCase{2159, 1785, 47},
                                         HitCase{0, 1786, -1}, HitCase{-120, 1600, -1}));

TEST_F(PaletteGrid, RedrawsOnlyWhenTheCellChanges) {
  open();
  moveToCell(1, 1);
  take();
  moveTo(120 + 275, 525 + 275);
  EXPECT_THAT(take(), IsEmpty());
  moveToCell(2, 1);
  EXPECT_THAT(take(), ElementsAre("pnlColor: repaint"));
}

TEST_F(PaletteGrid, TheEntriesDrawTheirHoverAndTheGridClearsIt) {
  open();
  moveToCell(1, 1);
  take();
  window().labelControl("lblMoreColors").movePointer();
  EXPECT_THAT(take(), ElementsAre("picMoreColors: repaint"));
  EXPECT_THAT(frame(), testing::Not(IsEmpty()));  // the frame's lines stay
  panel().pressAt({0}, {0});
  EXPECT_THAT(take(), IsEmpty());
  moveTo(0, 0);
  EXPECT_THAT(take(), ElementsAre("picMoreColors: repaint", "pnlColor: repaint"));
  window().picture("picLSSwatch").movePointer({0}, {0});
  EXPECT_THAT(take(), ElementsAre("picLSSwatch: repaint"));
  moveToCell(1, 1);
  EXPECT_THAT(take(), ElementsAre("picLSSwatch: repaint", "pnlColor: repaint"));
}

TEST_F(PaletteGrid, DrawsTheColorsInTheirOrder) {
  library.recentColors.PrevColor = {1, 2, 3, 4, 5, 6, 7, 8};
  open();
  ColorPad pad;
  panel().paint(pad);
  ASSERT_EQ(pad.fills.size(), 48U);
  for (std::size_t i = 0; i < 48; ++i) {
    EXPECT_EQ(pad.fills[i], i < 40 ? namedColors[i].color : static_cast<Rgb>(i - 39)) << i;
  }
}

TEST_F(PaletteGrid, TheRingWrapsAfterItsEighthColor) {
  for (int i = 1; i <= 9; ++i) {
    open();
    platform.boxes.colorChoices = {i * 1000};
    window().labelControl("lblMoreColors").click();
  }
  EXPECT_THAT(library.recentColors.PrevColor, ElementsAre(9000, 2000, 3000, 4000, 5000, 6000, 7000, 8000));
  EXPECT_EQ(library.recentColors.LastColor, 0);
}

TEST_F(PaletteGrid, ARecentColorIsSharedWithTheOtherPalettes) {
  open();
  platform.boxes.colorChoices = {4711};
  window().labelControl("lblMoreColors").click();
  model->values["IsLineColorDefault"] = false;
  model->values["LineColor"] = std::int32_t{4711};
  library.lineColors.ShowSelf(0, 0);
  EXPECT_TRUE(form("frmLineColors").picture("pnlColor").parts()[40].pressed);
}

TEST_F(PaletteGrid, AFrameIsDrawnAtTheScreensOwnPixels) {
  library.state.gTwipsPerPixelX = 10;
  library.state.gTwipsPerPixelY = 12;
  open();
  moveToCell(0, 0);
  EXPECT_THAT(frame(), ElementsAre(120, 537, 380, 795));
  moveTo(120, 2040);
  EXPECT_THAT(frame(), ElementsAre(120, 2040, 380, 2298));
}

TEST_F(PaletteGrid, ASystemColorIsNoneOfTheColors) {
  explicitColor(-2147483643);  // the system's window colour, as a program may name it
  palette().ShowSelf(0, 0);
  EXPECT_THAT(frame(), IsEmpty());
}

TEST_F(PaletteGrid, TheEntryOfTheStyleLooksChosenWhileTheStylesColorShows) {
  const auto edges = [this] {
    const Lines drawn = window().picture("picLSSwatch").draw();
    return std::ranges::count_if(drawn, [](const std::string& line) { return line.ends_with("in system 13"); });
  };
  open();
  const auto chosen = edges();
  EXPECT_TRUE(window().picture("picLSSwatch").parts()[0].pressed);
  window().userCloses();
  explicitColor(255);
  open();
  EXPECT_GT(chosen, edges());
  EXPECT_FALSE(window().picture("picLSSwatch").parts()[0].pressed);
}

TEST_F(PaletteGrid, MoreColorsLooksPressedWhileItIsHeldAndOpensWhereverItIsLetGo) {
  open();
  headless::Picture& entry = window().picture("picMoreColors");
  entry.movePointer({1}, {1});
  const Lines hovered = entry.draw();
  entry.pressAt({1}, {1});
  EXPECT_NE(entry.draw(), hovered);
  EXPECT_TRUE(entry.parts()[0].pressed);
  platform.boxes.colorChoices = {std::nullopt};
  entry.releaseAt({-900}, {0});
  EXPECT_THAT(take(), testing::Contains(testing::StartsWith("color dialog")));
  open();
  EXPECT_FALSE(window().picture("picMoreColors").parts()[0].pressed);
  platform.boxes.colorChoices = {std::nullopt};
  window().labelControl("lblMoreColors").pressAndLeave();
  EXPECT_THAT(take(), testing::Contains(testing::StartsWith("color dialog")));
}

TEST_F(PaletteGrid, MoreColorsIsNotPressedAnyMoreWhenThePaletteComesBack) {
  open();
  window().picture("picMoreColors").pressAt({1}, {1});
  platform.windows.activateElsewhere();
  open();
  EXPECT_FALSE(window().picture("picMoreColors").parts()[0].pressed);
}

TEST_F(PaletteGrid, AnEntryIsMarkedOnceWhicheverOfItsControlsIsUnderThePointer) {
  open();
  const auto overPicture = [this](const char* name) { window().picture(name).movePointer({1}, {1}); };
  const auto overLabel = [this](const char* name) { window().labelControl(name).movePointer(); };
  const auto isHot = [this](const char* name) { return window().picture(name).parts()[0].hot; };
  for (int round = 0; round < 2; ++round) {
    overPicture("picMoreColors");
    EXPECT_TRUE(isHot("picMoreColors"));
    take();
    overLabel("lblMoreColors");
    EXPECT_THAT(take(), IsEmpty());
    overLabel("lblLSColor");
    EXPECT_THAT(take(), ElementsAre("picMoreColors: repaint", "picLSSwatch: repaint"));
    EXPECT_TRUE(isHot("picLSSwatch"));
    EXPECT_FALSE(isHot("picMoreColors"));
    overPicture("picLSSwatch");
    EXPECT_THAT(take(), IsEmpty());
    overLabel("lblMoreColors");
    EXPECT_THAT(take(), ElementsAre("picLSSwatch: repaint", "picMoreColors: repaint"));
    overLabel("lblLSColor");
  }
}

TEST_F(PaletteGrid, MoreColorsLooksPressedBelowItsLabelTooAndNoMoreWhileTheDialogIsUp) {
  open();
  take();
  window().labelControl("lblMoreColors").press();
  EXPECT_THAT(take(), ElementsAre("picMoreColors: repaint"));
  EXPECT_TRUE(window().picture("picMoreColors").parts()[0].pressed);
  bool pressedDuringDialog = true;
  platform.boxes.duringColorDialog = [&] {
    pressedDuringDialog = window().picture("picMoreColors").parts()[0].pressed;
  };
  platform.boxes.colorChoices = {std::nullopt};
  window().labelControl("lblMoreColors").release(true);
  EXPECT_FALSE(pressedDuringDialog);
}

TEST_F(PaletteGrid, NothingStaysMarkedWhenThePointerHasLeft) {
  explicitColor(255);
  open();
  window().mouseLeft();
  EXPECT_THAT(frame(), ElementsAre(120, 1080, 375, 1335)) << "the pointer has not been there";
  EXPECT_EQ(hoveredByPress(), let("255&") + closing());
  open();
  window().labelControl("lblMoreColors").movePointer();
  take();
  window().mouseLeft();
  EXPECT_THAT(take(), ElementsAre("picMoreColors: repaint"));
  EXPECT_FALSE(window().picture("picMoreColors").parts()[0].hot);
  moveToCell(2, 2);
  window().mouseLeft();
  EXPECT_THAT(frame(), IsEmpty());
  take();
  panel().pressAt({0}, {0});
  EXPECT_EQ(events(), "");
}

TEST_F(PaletteGrid, TheStylesLabelIsLeftWithoutAChoice) {
  open();
  window().labelControl("lblLSColor").pressAndLeave();
  EXPECT_EQ(events(), "");
  EXPECT_TRUE(palette().isVisible());
}

}  // namespace
}  // namespace nerida

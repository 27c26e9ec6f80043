// A palette without a mouse, and as assistive tools see it.
#include "tests/unit/palette_desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PaletteKeyboard : public testing::Test, protected PaletteDesk {
 protected:
  void SetUp() override { showPalette(roles[2]); }
  // Opens it as somebody does who came to its button by keyboard.
  void openByKeyboard() {
    platform.windows.focus.isShown = true;
    open();
  }
  std::size_t focusBoxes() {
    const Lines drawn = panel().draw();
    return static_cast<std::size_t>(
        std::ranges::count_if(drawn, [](const std::string& line) { return line.starts_with("focus"); }));
  }
};

TEST_F(PaletteKeyboard, EveryPartHasItsName) {
  open();
  const std::vector<DrawnPart> parts = panel().parts();
  ASSERT_EQ(parts.size(), 48U);
  for (std::size_t i = 0; i < 40; ++i) EXPECT_EQ(parts[i].name, namedColors[i].name);
  EXPECT_EQ(parts[40].name, "Recent color 1");
  EXPECT_EQ(parts[47].name, "Recent color 8");
  EXPECT_EQ(parts[9].place, (Bounds{{390}, {795}, {270}, {270}}));
  EXPECT_EQ(parts[47].place, (Bounds{{2010}, {2040}, {270}, {270}}));
  EXPECT_EQ(window().picture("picMoreColors").parts()[0].name, "More Colors");
  EXPECT_EQ(window().picture("picLSSwatch").parts()[0].name, "LookStyle Default");
}

TEST_F(PaletteKeyboard, EveryPartCanBePressed) {
  open();
  panel().pressPart(16);
  EXPECT_EQ(events(), let("255&") + closing());
  open();
  window().picture("picLSSwatch").pressPart(0);
  EXPECT_EQ(events(), "model: RestoreDefaultSurfaceColor\n" + closing());
  open();
  platform.boxes.colorChoices = {std::nullopt};
  window().picture("picMoreColors").pressPart(0);
  EXPECT_TRUE(events().ends_with(closing()));
}

TEST_F(PaletteKeyboard, ArrowsMoveFromTheFirstCellAndStopAtTheEdges) {
  open();
  for (const Key key : {Key::right, Key::left, Key::up}) EXPECT_TRUE(panel().key(key));
  EXPECT_THAT(frame(), ElementsAre(120, 540, 375, 795));
  for (int i = 0; i < 9; ++i) panel().key(Key::down);
  for (int i = 0; i < 9; ++i) panel().key(Key::right);
  EXPECT_THAT(frame(), ElementsAre(2010, 2040, 2265, 2295));
  EXPECT_TRUE(panel().parts()[47].focused);
  library.recentColors.PrevColor[7] = 0;
  take();
  panel().key(Key::choose);
  EXPECT_EQ(events(), let("0&") + closing());
}

TEST_F(PaletteKeyboard, TheKeyboardStartsAtTheChosenColorAndTheMouseTakesOver) {
  explicitColor(255);
  open();
  panel().key(Key::right);
  EXPECT_EQ(frame()[0], 120 + 270);
  EXPECT_EQ(focusBoxes(), 1U);
  moveToCell(5, 0);
  EXPECT_EQ(frame()[0], 120 + 5 * 270);
  EXPECT_EQ(focusBoxes(), 0U);
}

TEST_F(PaletteKeyboard, TheFirstKeyOnlyShowsWhereItIs) {
  open();
  panel().key(Key::choose);
  EXPECT_EQ(events(), "");
  EXPECT_TRUE(palette().isVisible());
  EXPECT_THAT(frame(), ElementsAre(120, 540, 375, 795));
  panel().key(Key::choose);
  EXPECT_EQ(events(), let("0&") + closing());
}

TEST_F(PaletteKeyboard, GoesOnWhereItOpenedThePalette) {
  openByKeyboard();
  EXPECT_EQ(focusBoxes(), 1U);
  panel().key(Key::right);
  EXPECT_THAT(frame(), ElementsAre(390, 540, 645, 795));
  panel().key(Key::choose);
  EXPECT_EQ(events(), let(std::to_string(namedColors[1].color) + "&") + closing());
  openByKeyboard();
  panel().key(Key::choose);
  EXPECT_EQ(events(), let(std::to_string(namedColors[1].color) + "&") + closing());
}

TEST_F(PaletteKeyboard, LeavesNoMarkBehindWhenTheMouseMovesBesideTheCells) {
  openByKeyboard();
  take();
  moveTo(0, 0);
  EXPECT_THAT(take(), testing::Contains("pnlColor: repaint"));
  EXPECT_EQ(focusBoxes(), 0U);
}

TEST_F(PaletteKeyboard, APressOfTheMouseCountsWhereItIs) {
  open();
  moveToCell(5, 0);
  panel().key(Key::down);
  take();
  panel().pressAt({120 + 2 * 270 + 9}, {525 + 9});
  EXPECT_EQ(events(), let(std::to_string(namedColors[2].color) + "&") + closing());
  open();
  panel().key(Key::down);
  take();
  panel().pressAt({0}, {0});
  EXPECT_EQ(events(), "");
  EXPECT_THAT(frame(), IsEmpty());
}

TEST_F(PaletteKeyboard, ReachesTheRecentColorsFromEveryColumn) {
  library.recentColors.PrevColor = {1, 2, 3, 4, 5, 6, 7, 8};
  for (int column = 0; column < 8; ++column) {
    openByKeyboard();
    for (int i = 0; i < 8; ++i) panel().key(Key::left);
    for (int i = 0; i < column; ++i) panel().key(Key::right);
    for (int i = 0; i < 5; ++i) panel().key(Key::down);
    panel().key(Key::choose);
    EXPECT_EQ(events(), let(std::to_string(column + 1) + "&") + closing());
    window().picture("picLSSwatch").pressPart(0);
    take();
  }
}

TEST_F(PaletteKeyboard, TellsTheCellUnderThePointerApart) {
  explicitColor(255);
  open();
  EXPECT_FALSE(panel().parts()[16].hot);
  moveToCell(3, 1);
  EXPECT_TRUE(panel().parts()[11].hot);
  EXPECT_TRUE(panel().parts()[16].pressed);
  panel().key(Key::right);
  EXPECT_FALSE(panel().parts()[11].hot);
  EXPECT_TRUE(panel().parts()[12].focused);
  window().labelControl("lblMoreColors").movePointer();
  EXPECT_TRUE(window().picture("picMoreColors").parts()[0].hot);
  EXPECT_FALSE(window().picture("picLSSwatch").parts()[0].hot);
}

TEST_F(PaletteKeyboard, EveryEntryIsCaptionedAndNoCellIs) {
  open();
  for (const DrawnPart& part : panel().parts()) EXPECT_FALSE(part.captioned) << part.name;
  for (const char* entry : {"picMoreColors", "picLSSwatch"}) EXPECT_TRUE(window().picture(entry).parts()[0].captioned);
}

TEST_F(PaletteKeyboard, UnmarksTheEntryUnderThePointer) {
  open();
  window().labelControl("lblMoreColors").movePointer();
  take();
  panel().key(Key::right);
  EXPECT_THAT(take(), ElementsAre("picMoreColors: repaint", "pnlColor: repaint"));
  EXPECT_FALSE(window().picture("picMoreColors").parts()[0].hot);
}

TEST_F(PaletteKeyboard, StaysInSightWhenItComesBackFromAnEntry) {
  open();
  platform.windows.focus.isShown = true;
  EXPECT_EQ(focusBoxes(), 0U);
  window().picture("picMoreColors").setFocus();
  EXPECT_TRUE(window().picture("picMoreColors").parts()[0].focused);
  EXPECT_EQ(focusBoxes(), 0U);
  panel().setFocus();
  EXPECT_FALSE(window().picture("picMoreColors").parts()[0].focused);
  EXPECT_EQ(focusBoxes(), 1U);
}

TEST_F(PaletteKeyboard, IsInNoCellOfAPaletteThatHasLostTheFocus) {
  open();
  EXPECT_TRUE(panel().parts()[0].focused);
  platform.windows.activateElsewhere();
  EXPECT_FALSE(panel().parts()[0].focused);
}

TEST_F(PaletteKeyboard, TheKeyboardChoosesTheEntries) {
  open();
  window().picture("picMoreColors").setFocus();
  EXPECT_FALSE(window().picture("picMoreColors").key(Key::down));
  platform.boxes.colorChoices = {4711};
  EXPECT_TRUE(window().picture("picMoreColors").key(Key::choose));
  EXPECT_THAT(takeModelCalls(), ElementsAre("model: SurfaceColor = 4711&"));
  open();
  window().picture("picLSSwatch").setFocus();
  EXPECT_TRUE(palette().isVisible());
  EXPECT_FALSE(window().picture("picLSSwatch").key(Key::left));
  take();
  EXPECT_TRUE(window().picture("picLSSwatch").key(Key::choose));
  EXPECT_EQ(events(), "model: RestoreDefaultSurfaceColor\n" + closing());
}

}  // namespace
}  // namespace nerida

// The colour palette: the cell under the pointer, the frame, every way to choose, and what the toolbar is told.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct RoleCase {
  const char* form;
  std::size_t index;
  int bar;
  const char* key;
  const char* isDefault;
  const char* color;
  const char* restore;
  ColorPalette& (*palette)(Library&);
};

void PrintTo(const RoleCase& role, std::ostream* out) { *out << role.form; }

const RoleCase roles[] = {
    {"frmBackgroundColors", 6, 3, "Background", "IsBackgroundDefault", "BackgroundColor",
     "RestoreDefaultBackgroundColor", [](Library& l) -> ColorPalette& { return l.backgroundColors; }},
    {"frmLineColors", 2, 1, "LineColorFill", "IsLineColorDefault", "LineColor", "RestoreDefaultLineColor",
     [](Library& l) -> ColorPalette& { return l.lineColors; }},
    {"frmSurfaceColors", 4, 2, "SurfaceColorFill", "IsSurfaceColorDefault", "SurfaceColor",
     "RestoreDefaultSurfaceColor", [](Library& l) -> ColorPalette& { return l.surfaceColors; }},
};

// A drawing as lines of text, colours of the program's own in decimal.
class ColorPad : public Canvas {
 public:
  using Canvas::filledBox;
  using Canvas::line;
  void line(Twips, Twips, Twips, Twips, SystemColor) override {}
  void box(Twips, Twips, Twips, Twips, SystemColor) override {}
  void filledBox(Twips, Twips, Twips, Twips, SystemColor) override {}
  void line(Twips, Twips, Twips, Twips, Rgb) override {}
  void filledBox(Twips, Twips, Twips, Twips, Rgb color) override { fills.push_back(color); }
  void focusBox(Twips x1, Twips y1, Twips, Twips) override { focusBoxes.push_back({x1.value, y1.value}); }

  std::vector<Rgb> fills;
  std::vector<Point> focusBoxes;
};

// The four lines of the selection frame, as one rectangle of their corners.
class FramePad : public ColorPad {
 public:
  using ColorPad::line;
  void line(Twips x1, Twips y1, Twips x2, Twips y2, SystemColor) override {
    lines.push_back({x1.value, y1.value, x2.value, y2.value});
  }
  std::vector<std::array<std::int32_t, 4>> lines;
};

std::string withoutRepaints(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) {
    if (!line.ends_with("repaint")) text += line + "\n";
  }
  return text;
}

class PaletteDesk : protected Desk {
 protected:
  void showPalette(const RoleCase& which) {
    role = &which;
    enableStyleButtons();
    createInitAndShow();
    palette().load();
    take();
  }
  ColorPalette& palette() { return role->palette(library); }
  headless::FormWindow& window() { return form(role->form); }
  headless::Picture& panel() { return window().picture("pnlColor"); }
  void explicitColor(Rgb color) {
    model->values[role->isDefault] = false;
    model->values[role->color] = color;
  }
  // Opens it with the toolbar's button.
  void open() {
    bar("barLS", role->bar).press(role->key);
    take();
  }
  void moveTo(std::int32_t x, std::int32_t y) { panel().movePointer({x}, {y}); }
  void moveToCell(int column, int row) { moveTo(120 + column * 270 + 100, 525 + row * 270 + 100); }
  void choose(int column, int row) {
    moveToCell(column, row);
    panel().pressAt({0}, {0});
  }
  // left, top, right, bottom; nothing while it is hidden.
  std::vector<std::int32_t> frame() {
    FramePad pad;
    panel().paint(pad);
    if (pad.lines.empty()) return {};
    EXPECT_EQ(pad.lines.size(), 4U);
    std::array<std::int32_t, 4> all = pad.lines.front();
    for (const auto& line : pad.lines) {
      all = {std::min(all[0], line[0]), std::min(all[1], line[1]), std::max(all[2], line[2]),
             std::max(all[3], line[3])};
    }
    return {all.begin(), all.end()};
  }
  std::string events() { return withoutRepaints(take()); }
  std::string closing() const {
    return std::string(role->form) + ": hide\n" + foregroundLine() + "\nbarLS(" + std::to_string(role->bar) +
           "): " + role->key + " state 0\n";
  }
  std::string let(const std::string& value) const {
    return std::string("model: ") + role->color + " = " + value + "\n";
  }

  const RoleCase* role = nullptr;
};

class Palette : public testing::TestWithParam<RoleCase>, protected PaletteDesk {
 protected:
  void SetUp() override { showPalette(GetParam()); }
};

TEST_P(Palette, OfAStyleColorOpensWithoutAFrame) {
  palette().ShowSelf(30, 40);
  EXPECT_EQ(events(), std::string("model: ") + role->isDefault + "\n" + role->form + ": show topmost at (30, 40)\n");
  EXPECT_THAT(frame(), IsEmpty());
  EXPECT_TRUE(library.state.gFormShown[role->index]);
}

TEST_P(Palette, OfAnExplicitColorFramesIt) {
  explicitColor(rgb(51, 102, 255));  // Light Blue, column 5 of row 2
  palette().ShowSelf(30, 40);
  EXPECT_EQ(events(), std::string("model: ") + role->isDefault + "\nmodel: " + role->color + "\n" + role->form +
                          ": show topmost at (30, 40)\n");
  EXPECT_THAT(frame(), ElementsAre(120 + 5 * 270, 525 + 2 * 270 + 15, 120 + 6 * 270 - 15, 525 + 3 * 270));
}

TEST_P(Palette, ChoosingACellSetsTheColorAndCloses) {
  open();
  choose(3, 1);  // Green
  EXPECT_EQ(events(), let("32768&") + closing());
  EXPECT_FALSE(library.state.gFormShown[role->index]);
  open();
  EXPECT_TRUE(palette().isVisible());
}

TEST_P(Palette, ChoosingARecentColorSetsIt) {
  library.recentColors.PrevColor = {11, 12, 13, 14, 15, 16, 17, 18};
  open();
  moveTo(120 + 2 * 270, 525 + 1515);
  panel().pressAt({0}, {0});
  EXPECT_EQ(events(), let("13&") + closing());
}

TEST_P(Palette, GoesBackToTheStyle) {
  explicitColor(255);
  open();
  window().picture("picLSSwatch").pressAt({1}, {1});
  EXPECT_EQ(events(), std::string("model: ") + role->restore + "\n" + closing());
  open();
  window().labelControl("lblLSColor").click();
  EXPECT_EQ(events(), std::string("model: ") + role->restore + "\n" + closing());
}

TEST_P(Palette, MoreColorsTakesTheNextSlotOfTheRing) {
  open();
  platform.boxes.colorChoices = {0x112233};
  window().labelControl("lblMoreColors").click();
  const Lines lines = take();
  EXPECT_THAT(lines, testing::Contains(testing::StartsWith("color dialog of " + std::to_string(window().handle()))));
  EXPECT_EQ(std::ranges::count(lines, std::string("model: ") + role->color + " = 1122867&"), 1);
  EXPECT_EQ(library.recentColors.LastColor, 0);
  EXPECT_EQ(library.recentColors.PrevColor[0], 0x112233);
  EXPECT_FALSE(palette().isVisible());
  EXPECT_EQ(std::ranges::count(lines, std::string(role->form) + ": hide"), 1);
  EXPECT_EQ(bar("barLS", role->bar).button(role->key).state, buttonUp);
}

TEST_P(Palette, ACancelledDialogOnlyClosesIt) {
  library.recentColors.PrevColor = {9, 9, 9, 9, 9, 9, 9, 9};
  open();
  platform.boxes.colorChoices = {std::nullopt};
  window().picture("picMoreColors").pressAt({1}, {1});
  window().picture("picMoreColors").releaseAt({1}, {1});
  const std::string happened = events();
  EXPECT_TRUE(happened.ends_with(closing())) << happened;
  EXPECT_EQ(happened.find("model:"), std::string::npos);
  EXPECT_EQ(library.recentColors.LastColor, -1);
  EXPECT_THAT(library.recentColors.PrevColor, testing::Each(9));
}

INSTANTIATE_TEST_SUITE_P(Roles, Palette, testing::ValuesIn(roles));

class PaletteGrid : public testing::Test, protected PaletteDesk {
 protected:
  void SetUp() override { showPalette(roles[2]); }
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

TEST_F(PaletteGrid, IsAbandonedQuietlyWhenTheModelFailsItAtOpening) {
  explicitColor(255);
  for (const char* member : {"IsSurfaceColorDefault", "SurfaceColor"}) {
    model->failures.emplace(member, Error(5));
    palette().ShowSelf(0, 0);
    EXPECT_FALSE(palette().isVisible()) << member;
    EXPECT_FALSE(library.state.gFormShown[4]) << member;
    EXPECT_THAT(takeBoxes(), IsEmpty()) << member;
    model->failures.clear();
  }
}

TEST_F(PaletteGrid, StaysOpenWhenTheModelRefusesTheColor) {
  open();
  model->failures.emplace("SurfaceColor", Error(5));
  answerBoxes(1);
  choose(1, 1);
  EXPECT_THAT(takeBoxes(), ElementsAre(errorBox));
  EXPECT_TRUE(palette().isVisible());
  model->failures.clear();
  model->failures.emplace("RestoreDefaultSurfaceColor", Error(7));
  answerBoxes(1);
  window().picture("picLSSwatch").pressAt({0}, {0});
  EXPECT_THAT(takeBoxes(), ElementsAre(memoryBox));
  EXPECT_TRUE(palette().isVisible());
}

TEST_F(PaletteGrid, EveryPartHasItsName) {
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

TEST_F(PaletteGrid, EveryPartCanBePressed) {
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

TEST_F(PaletteGrid, ArrowsMoveFromTheFirstCellAndStopAtTheEdges) {
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

TEST_F(PaletteGrid, TheKeyboardStartsAtTheChosenColorAndTheMouseTakesOver) {
  explicitColor(255);
  open();
  panel().key(Key::right);
  EXPECT_EQ(frame()[0], 120 + 270);
  ColorPad withKeys;
  panel().paint(withKeys);
  EXPECT_EQ(withKeys.focusBoxes.size(), 1U);
  moveToCell(5, 0);
  EXPECT_EQ(frame()[0], 120 + 5 * 270);
  ColorPad withMouse;
  panel().paint(withMouse);
  EXPECT_THAT(withMouse.focusBoxes, IsEmpty());
}

TEST_F(PaletteGrid, ChoosingWithoutACellDoesNothing) {
  open();
  panel().key(Key::choose);
  EXPECT_EQ(events(), "");
  EXPECT_TRUE(palette().isVisible());
}

TEST_F(PaletteGrid, TheKeyboardChoosesTheEntries) {
  open();
  window().picture("picLSSwatch").setFocus();
  EXPECT_TRUE(palette().isVisible());
  EXPECT_FALSE(window().picture("picLSSwatch").key(Key::left));
  take();
  EXPECT_TRUE(window().picture("picLSSwatch").key(Key::choose));
  EXPECT_EQ(events(), "model: RestoreDefaultSurfaceColor\n" + closing());
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

}  // namespace
}  // namespace nerida

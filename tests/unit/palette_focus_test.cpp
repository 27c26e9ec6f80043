// When a palette closes by itself, and that it closes once.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PaletteFocus : public DeskTest {
 protected:
  void SetUp() override {
    enableStyleButtons();
    createInitAndShow();
  }
  ColorPalette& palette() { return library.surfaceColors; }
  headless::FormWindow& window() { return form("frmSurfaceColors"); }
  void open() {
    pressWithMouse(bar("barLS", 2), "SurfaceColorFill");
    ASSERT_TRUE(palette().isVisible());
    take();
  }
  Lines closing() const { return {"frmSurfaceColors: hide", foregroundLine(), "barLS(2): SurfaceColorFill state 0"}; }
};

TEST_F(PaletteFocus, GoesToThePanelWhenThePaletteShows) {
  open();
  EXPECT_EQ(platform.windows.focus.holder, &window().picture("pnlColor"));
}

TEST_F(PaletteFocus, GoingToTheToolbarClosesItOnce) {
  open();
  toolbar().userActivates();
  EXPECT_EQ(take(), closing());
}

TEST_F(PaletteFocus, GoingToAnotherProgramClosesIt) {
  open();
  platform.windows.activateElsewhere();
  EXPECT_EQ(take(), closing());
}

TEST_F(PaletteFocus, GoingFromTheEntriesElsewhereClosesIt) {
  for (const char* entry : {"picMoreColors", "picLSSwatch"}) {
    open();
    window().picture(entry).setFocus();
    EXPECT_TRUE(palette().isVisible());
    take();
    platform.windows.activateElsewhere();
    EXPECT_EQ(take(), closing()) << entry;
  }
}

TEST_F(PaletteFocus, MovingInsideThePaletteKeepsItOpen) {
  open();
  window().picture("picMoreColors").setFocus();
  window().picture("picLSSwatch").setFocus();
  window().picture("pnlColor").setFocus();
  EXPECT_TRUE(palette().isVisible());
}

TEST_F(PaletteFocus, TheColorDialogDoesNotCloseIt) {
  open();
  bool openDuringDialog = false;
  platform.boxes.duringColorDialog = [&] { openDuringDialog = palette().isVisible(); };
  platform.boxes.colorChoices = {255};
  window().labelControl("lblMoreColors").click();
  EXPECT_TRUE(openDuringDialog);
  EXPECT_FALSE(palette().isVisible());
}

TEST_F(PaletteFocus, AnotherPaletteReplacesIt) {
  open();
  pressWithMouse(bar("barLS", 1), "LineColorFill");
  EXPECT_FALSE(palette().isVisible());
  EXPECT_TRUE(library.lineColors.isVisible());
  EXPECT_EQ(bar("barLS", 2).button("SurfaceColorFill").state, buttonUp);
  EXPECT_EQ(bar("barLS", 1).button("LineColorFill").state, buttonDown);
}

TEST_F(PaletteFocus, EscapeClosesItWithoutAChoice) {
  open();
  window().userCloses();
  EXPECT_EQ(take(), closing());
  open();
}

TEST_F(PaletteFocus, AFullCountOfPopupsIsReported) {
  for (int i = 0; i < 32768; ++i) library.toolbar.KillChild();
  open();
  answerBoxes(1);
  platform.windows.activateElsewhere();
  EXPECT_THAT(takeBoxes(), ElementsAre(errorBox));
}

TEST_F(PaletteFocus, HidingTheToolbarFromInsideTheModelsCallLeavesNothingBehind) {
  for (const char* member : {"IsSurfaceColorDefault"}) {
    model->hooks[member] = [this] { control->ToolbarHide(); };
    bar("barLS", 2).press("SurfaceColorFill");
    EXPECT_FALSE(palette().isVisible());
    EXPECT_EQ(bar("barLS", 2).button("SurfaceColorFill").state, buttonUp);
    model->hooks.clear();
    show();
  }
  open();
  model->hooks["SurfaceColor"] = [this] { control->ToolbarHide(); };
  window().picture("pnlColor").movePointer({130}, {530});
  window().picture("pnlColor").pressAt({0}, {0});
  const Lines lines = take();
  EXPECT_EQ(std::ranges::count(lines, "frmSurfaceColors: hide"), 1);
  EXPECT_FALSE(control->IsToolbarVisible());
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(PaletteFocus, DisposingFromInsideTheModelsCallIsQuiet) {
  model->hooks["IsSurfaceColorDefault"] = [this] { control->ToolbarDispose(); };
  bar("barLS", 2).press("SurfaceColorFill");
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_EQ(platform.windows.find("frmSurfaceColors"), nullptr);
}

TEST_F(PaletteFocus, DisposingFromInsideAChoiceIsQuiet) {
  open();
  model->hooks["SurfaceColor"] = [this] { control->ToolbarDispose(); };
  const auto press = window().picture("pnlColor").pressPart;
  press(3);
  const Lines lines = take();
  EXPECT_EQ(std::ranges::count_if(lines, [](const std::string& line) { return line.starts_with("box"); }), 0);
  EXPECT_EQ(platform.windows.find("frmSurfaceColors"), nullptr);
}

TEST_F(PaletteFocus, DisposingDuringTheColorDialogChangesNothing) {
  open();
  platform.boxes.duringColorDialog = [this] { control->ToolbarDispose(); };
  platform.boxes.colorChoices = {255};
  const auto press = window().picture("picMoreColors").pressPart;
  press(0);
  EXPECT_EQ(library.recentColors.LastColor, -1);
  EXPECT_EQ(platform.windows.find("frmSurfaceColors"), nullptr);
}

}  // namespace
}  // namespace nerida

// The menu of line thicknesses: how it is built, which button it shows pressed, what a press sends, how it closes.
#include "platform/value_text.h"
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class LineThickness : public DeskTest {
 protected:
  void SetUp() override {
    model->values["LineThicknessScale"] = std::int16_t{100};
    createInitAndShow();
  }

  frmLineThicknessMenu& menu() { return library.lineThicknessMenu; }
  headless::FormWindow& window() const { return form("frmLineThicknessMenu"); }
  headless::Bar& barThick() const { return window().bar("barThick"); }
  headless::Picture& panel() const { return window().picture("pnlThickness"); }

  void open(Value scale) {
    model->values["LineThicknessScale"] = std::move(scale);
    menu().ShowSelf(1, 1);
    take();
  }

  std::string pressedKeys() const {
    std::string keys;
    for (const std::string& key : barThick().keys()) {
      if (barThick().button(key).state == buttonDown) keys += key + ";";
    }
    return keys;
  }

  Lines closing() const { return {"frmLineThicknessMenu: hide", foregroundLine(), "barLS(0): LineThickness state 0"}; }
};

TEST_F(LineThickness, IsBuiltInTheOrderOfEveryBar) {
  menu().unload();
  take();
  menu().load();
  EXPECT_THAT(take(),
              ElementsAre("frmLineThicknessMenu: load", "barThick: enabled", "barThick: folder C:\\Zephra\\System",
                          "barThick: tooltips on", "barThick: file Toolbar.res", "barThick: open Default",
                          "barThick: add ExThin", "barThick: add Thin", "barThick: add Medium", "barThick: add Thick",
                          "barThick: add ExThick", "barThick: lay out ExThin;Thin;Medium;Thick;ExThick",
                          "barThick: show Default"));
  EXPECT_TRUE(library.state.gFormLoaded[lineThicknessIndex]);
  EXPECT_FALSE(library.state.gFormShown[lineThicknessIndex]);
}

TEST_F(LineThickness, ItsButtonsHaveTheirPicturesAndNames) {
  const struct {
    const char *key, *spec, *name;
  } rows[] = {{"ExThin", "3, LineXS.bmp, 0,0", "Extra thin"},
              {"Thin", "3, LineS.bmp, 0,17", "Thin"},
              {"Medium", "3, LineM.bmp, 0,34", "Medium"},
              {"Thick", "3, LineL.bmp, 0,51", "Thick"},
              {"ExThick", "3, LineXL.bmp, 0,68", "Extra thick"}};
  EXPECT_THAT(barThick().keys(), ElementsAre("ExThin", "Thin", "Medium", "Thick", "ExThick"));
  for (const auto& row : rows) {
    EXPECT_EQ(barThick().button(row.key).bitmapSpec, row.spec);
    EXPECT_EQ(barThick().button(row.key).accessibleName, row.name);
    EXPECT_EQ(barThick().button(row.key).tooltip, "");
  }
}

TEST_F(LineThickness, OpensThenReadsTheModelThenPressesItsButton) {
  menu().ShowSelf(-5, 300);
  EXPECT_THAT(take(), ElementsAre("frmLineThicknessMenu: show topmost at (-5, 300)", "model: LineThicknessScale",
                                  "barThick: ExThin value 0", "barThick: Thin value 0", "barThick: Medium value 0",
                                  "barThick: Thick value 0", "barThick: ExThick value 0", "barThick: Medium state 2",
                                  "barThick: Medium value 1"));
  EXPECT_TRUE(library.state.gFormShown[lineThicknessIndex]);
  EXPECT_EQ(platform.windows.focus.holder, &panel());
}

struct ScaleCase {
  Value scale;
  const char* key;
  std::int32_t selection;
};

TEST_F(LineThickness, ShowsTheThinnestButtonThatTheScaleDoesNotExceed) {
  const ScaleCase cases[] = {
      {std::int16_t{-40}, "ExThin;", -40},
      {std::int16_t{0}, "ExThin;", 0},
      {std::int16_t{25}, "ExThin;", 25},
      {std::int16_t{50}, "ExThin;", 50},
      {std::int16_t{51}, "Thin;", 51},
      {std::int16_t{75}, "Thin;", 75},
      {std::int16_t{76}, "Medium;", 76},
      {std::int16_t{100}, "Medium;", 100},
      {std::int16_t{101}, "Thick;", 101},
      {std::int16_t{120}, "Thick;", 120},
      {std::int16_t{150}, "Thick;", 150},
      {std::int16_t{151}, "ExThick;", 200},
      {std::int16_t{200}, "ExThick;", 200},
      {std::int32_t{100000}, "ExThick;", 200},
      {75.5, "Medium;", 76},
      {74.5, "Thin;", 74},
      {std::string("75"), "Thin;", 75},
      {Value(), "ExThin;", 0},
  };
  for (const ScaleCase& c : cases) {
    open(c.scale);
    EXPECT_EQ(pressedKeys(), c.key) << written(c.scale);
    EXPECT_EQ(menu().GetSelection(), c.selection) << written(c.scale);
    menu().HideSelf();
  }
}

TEST_F(LineThickness, AModelThatFailsLeavesAnOpenMenuThatStillClosesByItself) {
  open(std::int16_t{75});
  menu().HideSelf();
  take();
  model->failures.emplace("LineThicknessScale", Error(error::outOfMemory));
  menu().ShowSelf(1, 1);
  EXPECT_THAT(take(), ElementsAre("frmLineThicknessMenu: show topmost at (1, 1)", "model: LineThicknessScale"));
  EXPECT_EQ(menu().GetSelection(), 75);
  EXPECT_TRUE(library.state.gFormShown[lineThicknessIndex]);
  toolbar().userActivates();
  EXPECT_FALSE(menu().isVisible());
}

TEST_F(LineThickness, APressSendsItsScaleStoresItsSelectionAndCloses) {
  const struct {
    const char* key;
    std::int32_t selection;
    const char* let;
  } cases[] = {{"ExThin", 50, "model: LineThicknessScale = 50%"},
               {"Thin", 75, "model: LineThicknessScale = 75%"},
               {"Medium", 100, "model: LineThicknessScale = 100%"},
               {"Thick", 200, "model: LineThicknessScale = 150%"},
               {"ExThick", 300, "model: LineThicknessScale = 200%"}};
  for (const auto& c : cases) {
    open(std::int16_t{100});
    barThick().press(c.key);
    Lines expected = closing();
    expected.insert(expected.begin(), c.let);
    EXPECT_EQ(take(), expected);
    EXPECT_EQ(menu().GetSelection(), c.selection);
    EXPECT_FALSE(library.state.gFormShown[lineThicknessIndex]);
  }
}

TEST_F(LineThickness, AnUnknownKeyOnlyCloses) {
  open(std::int16_t{75});
  barThick().buttonPress("exthin");
  EXPECT_EQ(take(), closing());
  EXPECT_EQ(menu().GetSelection(), 75);
}

TEST_F(LineThickness, AModelThatRefusesIsToldToNobodyAndTheMenuCloses) {
  open(std::int16_t{75});
  model->failures.emplace("LineThicknessScale", Error(error::outOfMemory));
  barThick().press("ExThick");
  Lines expected = closing();
  expected.insert(expected.begin(), "model: LineThicknessScale = 200%");
  EXPECT_EQ(take(), expected);
  EXPECT_EQ(menu().GetSelection(), 300);
}

TEST_F(LineThickness, ClosesOnceWhenItsPanelOrBarLosesTheFocusToAnotherWindow) {
  open(std::int16_t{75});
  toolbar().userActivates();
  EXPECT_EQ(take(), closing());
  open(std::int16_t{75});
  platform.windows.activateElsewhere();
  EXPECT_EQ(take(), closing());
  open(std::int16_t{75});
  platform.screen.active = 0;
  barThick().lostFocus();
  EXPECT_EQ(take(), closing());
  barThick().lostFocus();
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(LineThickness, StaysWhileTheFocusMovesInsideIt) {
  open(std::int16_t{75});
  panel().loseFocus();
  barThick().lostFocus();
  EXPECT_THAT(take(), IsEmpty());
  EXPECT_TRUE(menu().isVisible());
}

TEST_F(LineThickness, AModelThatHidesTheToolbarInsideACallClosesItForGood) {
  model->hooks["LineThicknessScale"] = [this] { control->ToolbarHide(); };
  menu().ShowSelf(1, 1);
  EXPECT_FALSE(menu().isVisible());
  EXPECT_NE(platform.windows.focus.holder, &panel());
  EXPECT_FALSE(library.state.gFormShown[lineThicknessIndex]);
  const Lines lines = take();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "frmLineThicknessMenu: hide"), 1);
}

TEST_F(LineThickness, AModelThatDisposesOfTheToolbarInsideAPressEndsItQuietly) {
  open(std::int16_t{75});
  model->hooks["LineThicknessScale"] = [this] { control->ToolbarDispose(); };
  barThick().press("Thin");
  EXPECT_THAT(take(), Not(Contains(testing::StartsWith("box "))));
  EXPECT_FALSE(menu().isLoaded());
}

TEST_F(LineThickness, EscapeClosesItWithoutAChoice) {
  open(std::int16_t{75});
  window().userCloses();
  EXPECT_EQ(take(), closing());
}

TEST_F(LineThickness, OpenedByKeyboardStartsOnThePressedButton) {
  model->values["LineThicknessScale"] = std::int16_t{60};
  menu().ShowSelf(1, 1);
  EXPECT_EQ(barThick().focusedKey, "");
  menu().HideSelf();
  platform.windows.focus.isShown = true;
  menu().ShowSelf(1, 1);
  EXPECT_EQ(barThick().focusedKey, "Thin");
  EXPECT_FALSE(panel().isTabStop) << "nothing shows that the panel has the focus";
}

TEST_F(LineThickness, TheKeyboardEntersTheBarAtThePressedButton) {
  open(std::int16_t{110});
  barThick().gotFocus();
  EXPECT_EQ(barThick().focusedKey, "") << "nobody uses the keyboard";
  platform.windows.focus.isShown = true;
  barThick().gotFocus();
  EXPECT_EQ(barThick().focusedKey, "Thick");
}

TEST_F(LineThickness, AScaleThatIsNoNumberIsLeftAlone) {
  open(std::int16_t{110});
  menu().HideSelf();
  for (const Value& scale : {Value(std::string("thin")), Value(Null{}), Value(ObjectRef())}) {
    model->values["LineThicknessScale"] = scale;
    take();
    menu().ShowSelf(1, 1);
    EXPECT_THAT(take(), ElementsAre("frmLineThicknessMenu: show topmost at (1, 1)", "model: LineThicknessScale"));
    EXPECT_EQ(menu().GetSelection(), 110);
    EXPECT_EQ(pressedKeys(), "Thick;");
    menu().HideSelf();
  }
}

TEST_F(LineThickness, ClosesOnceBeforeItHasEverShown) {
  open(std::int16_t{75});
  menu().HideSelf();
  menu().unload();
  menu().load();
  take();
  menu().HideSelf();
  EXPECT_EQ(take(), closing());
  menu().HideSelf();
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(LineThickness, AnArrowKeyLeadsFromThePanelToThePressedButton) {
  open(std::int16_t{110});
  EXPECT_TRUE(panel().key(Key::down));
  EXPECT_EQ(barThick().focusedKey, "Thick");
  EXPECT_FALSE(panel().key(Key::choose));
}

}  // namespace
}  // namespace nerida

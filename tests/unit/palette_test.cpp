// The three palettes: every way to choose, every way to fail, and what the toolbar and the model are told.
#include "platform/value_text.h"
#include "tests/unit/palette_desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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

TEST_P(Palette, DrawsItselfAnewAtEachStep) {
  const std::string name = role->form;
  const std::string released = "barLS(" + std::to_string(role->bar) + "): " + role->key + " state 0";
  const std::string colorLet = std::string("model: ") + role->color + " = ";
  explicitColor(255);
  palette().ShowSelf(30, 40);
  EXPECT_THAT(take(), ElementsAre("pnlColor: repaint", std::string("model: ") + role->isDefault, "picLSSwatch: repaint",
                                  std::string("model: ") + role->color, "pnlColor: repaint",
                                  name + ": show topmost at (30, 40)", "pnlColor: repaint", "picMoreColors: repaint",
                                  "picLSSwatch: repaint"));  // the focus has come
  panel().pressPart(1);
  EXPECT_THAT(take(), ElementsAre("pnlColor: repaint", "picLSSwatch: repaint", colorLet + "13209&", name + ": hide",
                                  "pnlColor: repaint", foregroundLine(), released));
  model->values[role->isDefault] = true;
  palette().ShowSelf(30, 40);
  take();
  platform.boxes.colorChoices = {2};
  window().picture("picMoreColors").pressPart(0);
  Lines lines = take();
  lines.erase(lines.begin(),
              std::ranges::find(lines, colorLet + "2&"));  // the dialog takes the focus, and gives it back
  EXPECT_THAT(lines, ElementsAre(colorLet + "2&", "pnlColor: repaint", name + ": hide", "pnlColor: repaint",
                                 foregroundLine(), released));
}

TEST_P(Palette, HandsTheColorBackWithoutClosingWhenItIsAskedTo) {
  explicitColor(255);
  palette().ShowSelf(30, 40);
  take();
  palette().SetStyleDefault();
  EXPECT_THAT(take(), ElementsAre("pnlColor: repaint", "picLSSwatch: repaint", std::string("model: ") + role->restore));
  EXPECT_THAT(frame(), IsEmpty());
  EXPECT_TRUE(window().picture("picLSSwatch").parts()[0].pressed);
  EXPECT_TRUE(palette().isVisible());
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

TEST_P(Palette, ADialogWhoseColorTheModelRefusesOnlyClosesIt) {
  open();
  platform.boxes.colorChoices = {0x112233};
  model->failures.emplace(role->color, Error(error::outOfMemory));
  window().labelControl("lblMoreColors").click();
  const std::string happened = events();
  EXPECT_TRUE(happened.ends_with(let("1122867&") + closing())) << happened;
  EXPECT_EQ(library.recentColors.LastColor, -1);
  EXPECT_THAT(library.recentColors.PrevColor, testing::Each(0));
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_P(Palette, ADialogThatGoesWithTheApplicationClosesItOnce) {
  open();
  platform.boxes.colorChoices = {std::nullopt};
  platform.boxes.duringColorDialog = [this] { platform.windows.activateApplication(false); };
  window().labelControl("lblMoreColors").click();
  const Lines lines = take();
  EXPECT_EQ(std::ranges::count(lines, std::string(role->form) + ": hide"), 1);
  EXPECT_EQ(library.recentColors.LastColor, -1);
  EXPECT_FALSE(library.state.gFormShown[role->index]);
  EXPECT_EQ(bar("barLS", role->bar).button(role->key).state, buttonUp);
}

TEST_P(Palette, IsAbandonedQuietlyWhenTheModelFailsItAtOpening) {
  explicitColor(255);
  for (const char* member : {role->isDefault, role->color}) {
    for (const std::int32_t number : {5, 7, 438}) {
      model->failures.insert_or_assign(member, Error(number));
      bar("barLS", role->bar).press(role->key);
      EXPECT_FALSE(palette().isVisible()) << member;
      EXPECT_FALSE(library.state.gFormShown[role->index]) << member;
      EXPECT_EQ(bar("barLS", role->bar).button(role->key).state, buttonUp);
      EXPECT_THAT(takeBoxes(), IsEmpty()) << member;
      model->failures.clear();
    }
  }
  open();
  EXPECT_TRUE(palette().isVisible());
}

TEST_P(Palette, StaysOpenWhenTheModelRefusesTheColor) {
  open();
  model->failures.emplace(role->color, Error(5));
  answerBoxes(1);
  choose(1, 1);
  EXPECT_THAT(takeBoxes(), ElementsAre(errorBox));
  EXPECT_TRUE(palette().isVisible());
  EXPECT_TRUE(library.state.gFormShown[role->index]);
  model->failures.clear();
  panel().pressAt({0}, {0});
  EXPECT_EQ(events(), let("26367&") + closing());
}

TEST_P(Palette, StaysOpenWhenTheModelKeepsTheColorFromTheStyle) {
  explicitColor(255);
  open();
  model->failures.emplace(role->restore, Error(7));
  answerBoxes(1);
  window().picture("picLSSwatch").pressAt({0}, {0});
  EXPECT_THAT(takeBoxes(), ElementsAre(memoryBox));
  EXPECT_TRUE(palette().isVisible());
  EXPECT_FALSE(window().picture("picLSSwatch").parts()[0].pressed);
  EXPECT_THAT(frame(), IsEmpty());
}

// The dialog starts from the colour that was handed over last.
TEST_P(Palette, ClosedWithoutAChoiceHandsTheEarlierChoiceOverAgain) {
  open();
  choose(3, 1);  // Green
  library.toolbar.setShownColor(colorRole(), 4711);
  model->values[role->isDefault] = true;
  open();
  EXPECT_THAT(frame(), IsEmpty());
  window().userCloses();
  open();
  platform.boxes.colorChoices = {std::nullopt};
  take();
  window().labelControl("lblMoreColors").click();
  EXPECT_THAT(take(), testing::Contains(testing::EndsWith(" from 32768")));
}

TEST_P(Palette, ClosedOnARecentColorHandsItOver) {
  open();
  platform.boxes.colorChoices = {4711};
  window().labelControl("lblMoreColors").click();
  library.toolbar.setShownColor(colorRole(), 1);
  open();
  window().userCloses();
  open();
  platform.boxes.colorChoices = {std::nullopt};
  take();
  window().labelControl("lblMoreColors").click();
  EXPECT_THAT(take(), testing::Contains(testing::EndsWith(" from 4711")));
}

TEST_P(Palette, WithoutAnyChoiceHandsNothingOver) {
  library.toolbar.setShownColor(colorRole(), 4711);
  open();
  window().userCloses();
  open();
  window().picture("picLSSwatch").pressAt({0}, {0});
  open();
  platform.boxes.colorChoices = {std::nullopt};
  window().labelControl("lblMoreColors").click();
  EXPECT_THAT(take(), testing::Contains(testing::EndsWith(" from 4711")));
}

TEST_P(Palette, ClosesOnceBeforeItHasEverShown) {
  palette().HideSelf();
  EXPECT_EQ(events(), closing());
  palette().HideSelf();
  EXPECT_EQ(events(), "");
}

TEST_P(Palette, TakesAnythingThatIsNotZeroForTheStylesColor) {
  const std::pair<Value, bool> cases[] = {
      {std::int16_t{1}, true}, {std::int32_t{-5}, true}, {std::string("True"), true},
      {Value(), false},        {Null{}, false},          {std::int32_t{0}, false}};
  for (const auto& [value, isDefault] : cases) {
    explicitColor(255);
    model->values[role->isDefault] = value;
    palette().ShowSelf(0, 0);
    EXPECT_EQ(frame().empty(), isDefault) << written(value);
    palette().unload();
  }
  model->values[role->isDefault] = std::string("garbage");
  palette().ShowSelf(0, 0);
  EXPECT_FALSE(palette().isVisible());
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Roles, Palette, testing::ValuesIn(roles));

}  // namespace
}  // namespace nerida

// The style list: how it is filled, which entry is current, what choosing one sends.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StyleList : public DeskTest {
 protected:
  void SetUp() override { createAndInit(); }
};

TEST_F(StyleList, KeepsTheModelsOrderBehindBasicDraw) {
  setStyles({"zebra", "Ant", "bee"});
  library.toolbar.GetLookStyleList();
  EXPECT_THAT(take(), ElementsAre("cmbStyles: clear", "model: GetLookStyleList ByRef Empty, ByRef Empty, ByRef Empty",
                                  "cmbStyles: add Basic Draw", "cmbStyles: add zebra", "cmbStyles: add Ant",
                                  "cmbStyles: add bee"));
}

TEST_F(StyleList, OfNoNamesHasOnlyBasicDraw) {
  setStyles({});
  library.toolbar.GetLookStyleList();
  EXPECT_THAT(styles().entries, ElementsAre("Basic Draw"));
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(StyleList, TakesTheFirstVariableThatHoldsAnArrayAndItsLowerBound) {
  model->functions["GetLookStyleList"] = [](std::span<Argument> arguments) {
    *arguments[0].variable = std::int32_t{2};
    *arguments[1].variable = textArray({"One", "Two"}, 1);
    *arguments[2].variable = textArray({"Not this"});
    return Value();
  };
  library.toolbar.GetLookStyleList();
  EXPECT_THAT(styles().entries, ElementsAre("Basic Draw", "One", "Two"));
  styles().choose("Two");
  EXPECT_THAT(takeModelCalls(), testing::Contains("model: LookStyle = \"Two\""));
}

TEST_F(StyleList, WithoutAnArrayIsReportedAndEmpty) {
  model->functions["GetLookStyleList"] = nullptr;
  answerBoxes(1);
  library.toolbar.GetLookStyleList();
  EXPECT_THAT(takeBoxes(), ElementsAre(errorBox));
  EXPECT_THAT(styles().entries, IsEmpty());
}

TEST_F(StyleList, HasTheGeneralMessageForEveryFailure) {
  for (const std::int32_t number : {5, 7, 13, 438}) {
    model->failures.insert_or_assign("GetLookStyleList", Error(number));
    answerBoxes(1);
    library.toolbar.GetLookStyleList();
    EXPECT_THAT(takeBoxes(), ElementsAre(errorBox));
  }
}

TEST_F(StyleList, ChoosingAnEntrySendsItsNameReadsTheStateAndRedraws) {
  model->hooks["LookStyle"] = [this] { model->values["LookStyleName"] = std::string("Ink Outline"); };
  styles().choose("Ink Outline");
  EXPECT_THAT(takeModelCalls(), ElementsAre("model: LookStyle = \"Ink Outline\"", "model: InterfaceFlags",
                                            "model: AnimationFrameCount", "model: ModelName", "model: LookStyleName",
                                            "model: IsToolbarShowing", "model: RefreshDisplay"));
  EXPECT_EQ(styles().item(styles().selected()), "Ink Outline");
}

TEST_F(StyleList, ChoosingTheCurrentEntryDoesNothing) {
  styles().choose("Shaded");
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(StyleList, GoesBackWhenTheModelRefusesAStyle) {
  styles().choose("Ink Outline");
  const Lines calls = takeModelCalls();
  EXPECT_EQ(styles().item(styles().selected()), "Shaded");
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "model: RefreshDisplay"), 2);
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "model: LookStyle = \"Ink Outline\""), 1);
}

TEST_F(StyleList, BasicDrawIsSentByItsName) {
  styles().choose("Basic Draw");
  EXPECT_EQ(takeModelCalls().front(), "model: LookStyle = \"Basic Draw\"");
}

TEST_F(StyleList, ACustomStyleIsAppendedOnceAndSelected) {
  model->values["LookStyleName"] = std::string("none");
  library.toolbar.InitSelf();
  library.toolbar.InitSelf();
  EXPECT_THAT(styles().entries, ElementsAre("Basic Draw", "Shaded", "Ink Outline", "Custom Style"));
  EXPECT_EQ(styles().selected(), 3);
}

TEST_F(StyleList, TheCustomStyleStaysUntilTheListIsFilledAnew) {
  model->values["LookStyleName"] = std::string("none");
  library.toolbar.InitSelf();
  model->values["LookStyleName"] = std::string("Shaded");
  library.toolbar.InitSelf();
  EXPECT_EQ(styles().count(), 4);
  library.toolbar.GetLookStyleList();
  EXPECT_EQ(styles().count(), 3);
}

TEST_F(StyleList, ChoosingTheCustomStyleSendsAnEmptyText) {
  model->values["LookStyleName"] = std::string("none");
  library.toolbar.InitSelf();
  model->values["LookStyleName"] = std::string("Shaded");
  library.toolbar.InitSelf();
  take();
  styles().choose("Custom Style");
  EXPECT_EQ(takeModelCalls().front(), "model: LookStyle = \"\"");
}

TEST_F(StyleList, AModelsOwnStyleOfThatNameIsSentAsAnEmptyTextToo) {
  setStyles({"Custom Style", "Shaded"});
  library.toolbar.GetLookStyleList();
  model->values["LookStyleName"] = std::string("none");
  take();
  library.toolbar.InitSelf();
  EXPECT_EQ(styles().count(), 3);
  EXPECT_EQ(styles().selected(), 1);
  styles().choose("Shaded");
  take();
  styles().choose("Custom Style");
  EXPECT_THAT(takeModelCalls(), testing::Not(testing::Contains("model: LookStyle = \"Custom Style\"")));
}

TEST_F(StyleList, AnUnknownOrOtherwiseWrittenNameSelectsNothing) {
  for (const char* name : {"shaded", "Shaded ", "None", "", "Sketch"}) {
    library.toolbar.InitSelf();
    model->values["LookStyleName"] = std::string(name);
    library.toolbar.InitSelf();
    EXPECT_EQ(styles().selected(), -1) << name;
    model->values["LookStyleName"] = std::string("Shaded");
  }
}

TEST_F(StyleList, SelectingNothingSendsNothingWhileTheToolbarDoesItItself) {
  model->values["LookStyleName"] = std::string("gone");
  library.toolbar.InitSelf();
  const Lines calls = takeModelCalls();
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "model: RefreshDisplay"), 1);
  EXPECT_THAT(calls, testing::Not(testing::Contains(testing::StartsWith("model: LookStyle ="))));
}

TEST_F(StyleList, SelectingNothingOtherwiseSendsTheCustomStyle) {
  styles().select(-1);
  EXPECT_EQ(takeModelCalls().front(), "model: LookStyle = \"\"");
}

TEST_F(StyleList, AnEntryThatIsNoNameOfTheListIsAnError) {
  styles().addItem("Stranger");
  take();
  answerBoxes(1);
  styles().choose("Stranger");
  EXPECT_THAT(take(), ElementsAre("cmbStyles: select 3", errorBox));
}

TEST_F(StyleList, AFailingModelIsReportedOnceAndTheNextChoiceWorks) {
  for (const char* member : {"LookStyle", "InterfaceFlags", "LookStyleName", "IsToolbarShowing", "RefreshDisplay"}) {
    model->values["LookStyleName"] = std::string("Shaded");
    library.toolbar.InitSelf();
    take();
    model->values["LookStyleName"] = std::string("Ink Outline");
    model->failures.emplace(member, Error(5));
    answerBoxes(1);
    styles().choose("Ink Outline");
    EXPECT_THAT(takeBoxes(), ElementsAre(errorBox)) << member;
    model->failures.clear();
    styles().choose("Basic Draw");
    EXPECT_EQ(takeModelCalls().front(), "model: LookStyle = \"Basic Draw\"") << member;
  }
}

TEST_F(StyleList, ShortMemoryIsToldAsSuch) {
  model->failures.emplace("LookStyle", Error(error::outOfMemory));
  answerBoxes(1);
  styles().choose("Basic Draw");
  EXPECT_THAT(takeBoxes(), ElementsAre(memoryBox));
}

}  // namespace
}  // namespace nerida

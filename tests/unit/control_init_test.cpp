// ToolbarInit: binding a model and reading its state into the toolbar.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;

class ControlInit : public DeskTest {
 protected:
  void SetUp() override {
    create();
    take();
  }
};

TEST_F(ControlInit, ReadsStylesFirstThenTheModelsStateAndTellsWhatIsShown) {
  EXPECT_EQ(init(), 0);
  EXPECT_THAT(take(), ElementsAre("cmbStyles: clear", "model: GetLookStyleList ByRef Empty, ByRef Empty, ByRef Empty",
                                  "cmbStyles: add Basic Draw", "cmbStyles: add Shaded", "cmbStyles: add Ink Outline",
                                  "model: InterfaceFlags",                                             //
                                  "barLS(2): hidden", "picSurface: visible",                           //
                                  "barLS(1): hidden", "picLine: visible",                              //
                                  "barLS(0): hidden", "picLineThick: visible",                         //
                                  "model: AnimationFrameCount", "picAni: visible",                     //
                                  "model: ModelName", "frmToolbar: caption Zephra Toolbar: Windmill",  //
                                  "model: LookStyleName", "cmbStyles: select 1",
                                  // the selection changed, so its click reads the state once more and redraws
                                  "model: InterfaceFlags",                                             //
                                  "barLS(2): hidden", "picSurface: visible",                           //
                                  "barLS(1): hidden", "picLine: visible",                              //
                                  "barLS(0): hidden", "picLineThick: visible",                         //
                                  "model: AnimationFrameCount", "picAni: visible",                     //
                                  "model: ModelName", "frmToolbar: caption Zephra Toolbar: Windmill",  //
                                  "model: LookStyleName", "model: IsToolbarShowing", "model: RefreshDisplay",
                                  "model: IsToolbarShowing",  //
                                  "model: IsToolbarShowing = False", "model: IsCatalogShowing"));
}

TEST_F(ControlInit, FindsTheSameStyleSelectedWithoutAClick) {
  init();
  take();
  init();  // the list is filled anew, which leaves nothing selected
  const Lines again = takeModelCalls();
  EXPECT_EQ(std::count(again.begin(), again.end(), "model: RefreshDisplay"), 1);
  library.toolbar.InitSelf();
  const Lines nested = takeModelCalls();
  EXPECT_EQ(std::count(nested.begin(), nested.end(), "model: RefreshDisplay"), 0);
}

TEST_F(ControlInit, WritesCatalogVisibilityOnlyWhenItDiffers) {
  model->values["IsCatalogShowing"] = true;
  EXPECT_EQ(init(), 0);
  EXPECT_EQ(takeModelCalls().back(), "model: IsCatalogShowing = False");
}

TEST_F(ControlInit, TakesAnyTrueValueOfIsCatalogShowing) {
  init();
  control->ShowCatalog();
  model->values["IsCatalogShowing"] = std::int32_t{1};
  take();
  EXPECT_EQ(init(), 0);
  EXPECT_EQ(takeModelCalls().back(), "model: IsCatalogShowing");
}

TEST_F(ControlInit, RepeatsAFailingStepUntilItSucceedsAndReturnsTheLastError) {
  int tries = 0;
  model->hooks["IsToolbarShowing"] = [&] {
    if (++tries == 3) throw Error(5);
    if (tries == 4) throw Error(380, "Invalid property value");
  };
  answerBoxes(2);
  EXPECT_EQ(init(), 380);
  const Lines lines = take();
  EXPECT_THAT(std::vector(lines.end() - 6, lines.end()),
              ElementsAre("model: IsToolbarShowing = False", toolbarBox, "model: IsToolbarShowing = False", toolbarBox,
                          "model: IsToolbarShowing = False", "model: IsCatalogShowing"));
}

TEST_F(ControlInit, AFailureInsideInitSelfStartsItAnewButNotTheStyleList) {
  bool failed = false;
  model->hooks["ModelName"] = [&] {
    if (!std::exchange(failed, true)) throw Error(error::outOfMemory);
  };
  answerBoxes(1);
  EXPECT_EQ(init(), 7);
  const Lines lines = take();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), memoryBox), 1);
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "model: GetLookStyleList ByRef Empty, ByRef Empty, ByRef Empty"), 1);
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "model: InterfaceFlags"), 3);
}

TEST_F(ControlInit, AFailingWriteRepeatsTheWriteAndNotTheReadBeforeIt) {
  model->values["IsCatalogShowing"] = true;
  int accesses = 0;
  model->hooks["IsCatalogShowing"] = [&] {
    if (++accesses == 2) throw Error(5);
  };
  answerBoxes(1);
  EXPECT_EQ(init(), 5);
  const Lines lines = take();
  EXPECT_THAT(std::vector(lines.end() - 4, lines.end()),
              ElementsAre("model: IsCatalogShowing", "model: IsCatalogShowing = False", toolbarBox,
                          "model: IsCatalogShowing = False"));
}

TEST_F(ControlInit, AModelWithoutStyleListIsToldTwiceAndTheResultStaysGood) {
  model->functions.erase("GetLookStyleList");
  answerBoxes(2);
  EXPECT_EQ(init(), 0);
  EXPECT_THAT(takeBoxes(), ElementsAre(errorBox, errorBox));
  EXPECT_EQ(styles().selected(), -1);
}

TEST_F(ControlInit, ANullModelIsReportedUntilSomebodyGivesUp) {
  answerBoxes(5);
  EXPECT_THROW(control->ToolbarInit(nullptr, 7), TestEnded);
  const Lines boxes = takeBoxes();
  ASSERT_EQ(boxes.size(), 6U);  // one by the style list, then InitSelf again and again
  EXPECT_EQ(boxes[0], errorBox);
  EXPECT_EQ(boxes[1], toolbarBox);
  EXPECT_EQ(boxes[5], toolbarBox);
}

TEST_F(ControlInit, DisposingFromInsideEndsTheRepeating) {
  model->failures.emplace("InterfaceFlags", Error(5));
  answerBoxes(2);
  int boxes = 0;
  platform.boxes.duringBox = [&] {
    if (++boxes == 2) control->ToolbarDispose();
  };
  EXPECT_EQ(init(), 5);
}

class DisposingMember : public testing::TestWithParam<const char*>, protected Desk {};

TEST_P(DisposingMember, EndsTheInitQuietlyAndBringsNoWindowBack) {
  create();
  model->values["AnimationFrameCount"] = std::int32_t{3};
  model->hooks[GetParam()] = [this] { control->ToolbarDispose(); };
  init();
  EXPECT_THAT(takeBoxes(), testing::IsEmpty());
  EXPECT_TRUE(platform.windows.living.empty());
  EXPECT_EQ(library.state.gModelObject, nullptr);
}

INSTANTIATE_TEST_SUITE_P(Members, DisposingMember,
                         testing::Values("GetLookStyleList", "InterfaceFlags", "AnimationFrameCount",
                                         "AnimationCurrentFrame", "ModelName", "LookStyleName", "IsToolbarShowing",
                                         "RefreshDisplay", "IsCatalogShowing"));

TEST_F(ControlInit, RebindsToAnotherModel) {
  init();
  const auto other = std::make_shared<headless::ScriptedObject>(platform.transcript);
  other->values = model->values;
  other->functions = model->functions;
  other->values["ModelName"] = std::string("Rocket");
  EXPECT_EQ(control->ToolbarInit(other, 8), 0);
  EXPECT_EQ(toolbar().caption, "Zephra Toolbar: Rocket");
  EXPECT_EQ(library.state.gHostWnd, 8);
  EXPECT_EQ(model.use_count(), 1);
}

TEST_F(ControlInit, AnAnimatedModelPutsItsFrameIntoTheAnimationPopup) {
  model->values["AnimationFrameCount"] = std::int32_t{24};
  model->values["AnimationCurrentFrame"] = std::int32_t{5};
  EXPECT_FALSE(library.state.gFormLoaded[animationIndex]);
  EXPECT_EQ(init(), 0);
  EXPECT_TRUE(library.state.gFormLoaded[animationIndex]);
  EXPECT_EQ(form("frmAnimation").textBox("txtFrame").text(), "5");
  EXPECT_FALSE(toolbar().pictureBox("picAni", 0).isVisible());
}

}  // namespace
}  // namespace nerida

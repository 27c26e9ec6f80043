// ToolbarDispose and the end of a control: what is unloaded in which order, and that nobody is bothered by it.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;

class ControlDispose : public DeskTest {
 protected:
  void SetUp() override { createAndInit(); }

  void showEverything() {
    show();
    library.lineThicknessMenu.ShowSelf(1, 1);
    library.lineColors.ShowSelf(1, 1);
    library.surfaceColors.ShowSelf(1, 1);
    library.backgroundColors.ShowSelf(1, 1);
    library.animation.ShowSelf(1, 1);
    library.lighting.ShowSelf(1, 1);
    control->ShowCatalog();
    library.lineThicknessMenu.ShowSelf(1, 1);
    library.lineColors.ShowSelf(1, 1);
    library.surfaceColors.ShowSelf(1, 1);
    library.backgroundColors.ShowSelf(1, 1);
    library.animation.ShowSelf(1, 1);
    library.lighting.ShowSelf(1, 1);
    show();
    take();
  }

  Lines takeUnloads() {
    Lines lines = take();
    std::erase_if(lines, [](const std::string& line) { return !line.ends_with(": unload"); });
    return lines;
  }
};

TEST_F(ControlDispose, UnloadsWhatIsLoadedAndLetsTheModelGo) {
  EXPECT_EQ(control->ToolbarDispose(), 0);
  EXPECT_THAT(take(),
              ElementsAre("model: IsToolbarShowing = False", "frmToolbar: hide", "frmToolbar: unload",
                          "frmLineThicknessMenu: unload", "frmSurfaceColors: unload",
                          "model: DoneShowingModelCatalog = True", "frmBrowser: unload", "frmLighting: unload"));
  EXPECT_EQ(library.state.gModelObject, nullptr);
  EXPECT_EQ(model.use_count(), 1);
  EXPECT_THAT(library.state.gFormLoaded, testing::Each(false));
  EXPECT_THAT(library.state.gFormShown, testing::Each(false));
}

TEST_F(ControlDispose, UnloadsEveryFormInItsFixedOrder) {
  showEverything();
  control->ToolbarDispose();
  EXPECT_THAT(takeUnloads(), ElementsAre("frmToolbar: unload", "frmLineThicknessMenu: unload", "frmLineColors: unload",
                                         "frmSurfaceColors: unload", "frmBackgroundColors: unload",
                                         "frmBrowser: unload", "frmLighting: unload", "frmAnimation: unload"));
}

TEST_F(ControlDispose, AShownToolbarHidesItsPopupsAndUnhooksBeforeItGoes) {
  show();
  library.animation.ShowSelf(1, 1);
  take();
  const std::string foreground = foregroundLine();
  control->ToolbarDispose();
  const Lines lines = take();
  EXPECT_THAT(Lines(lines.begin(), lines.begin() + 6),
              ElementsAre("frmAnimation: hide", foreground, "model: IsToolbarShowing = False", "frmToolbar: hide",
                          "frmToolbar: unhook", "frmToolbar: unload"));
}

TEST_F(ControlDispose, WritesTheRecentColoursBackWhenTheToolbarUnloads) {
  library.recentColors.PrevColor = {1, 2, 3, 4, 5, 6, 7, 8};
  library.recentColors.LastColor = 7;
  platform.settings.texts.clear();
  control->ToolbarDispose();
  EXPECT_EQ(platform.settings.texts.size(), 9U);
  EXPECT_EQ((platform.settings.texts[{"Toolbar", "PrevColor7"}]), "8");
  EXPECT_EQ((platform.settings.texts[{"Toolbar", "LastColor"}]), "7");
}

TEST_F(ControlDispose, TwiceUnloadsNothingTwice) {
  control->ToolbarDispose();
  take();
  EXPECT_EQ(control->ToolbarDispose(), 0);
  control.reset();
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(ControlDispose, IsQuietAboutAModelThatRaisesAtEverything) {
  showEverything();
  for (const auto& [member, value] : model->values) model->failures.emplace(member, Error(5));
  EXPECT_EQ(control->ToolbarDispose(), 0);
  EXPECT_THAT(takeBoxes(), IsEmpty());
  EXPECT_TRUE(platform.windows.living.empty());
  EXPECT_EQ(library.state.gModelObject, nullptr);
}

TEST_F(ControlDispose, FromInsideItselfUnloadsEveryFormOnce) {
  show();
  model->hooks["IsToolbarShowing"] = [this] { control->ToolbarDispose(); };
  take();
  control->ToolbarDispose();
  EXPECT_THAT(takeUnloads(), ElementsAre("frmToolbar: unload", "frmLineThicknessMenu: unload",
                                         "frmSurfaceColors: unload", "frmBrowser: unload", "frmLighting: unload"));
}

TEST_F(ControlDispose, FromInsideItselfSavesTheColoursOnce) {
  show();
  model->hooks["IsToolbarShowing"] = [this] {
    control->ToolbarDispose();
    platform.settings.texts.clear();
  };
  control->ToolbarDispose();
  EXPECT_TRUE(platform.settings.texts.empty());
}

TEST_F(ControlDispose, KeepsAToolbarThatTheModelBroughtBackMeanwhile) {
  show();
  model->hooks["IsToolbarShowing"] = [this] {
    model->hooks.clear();
    control->ToolbarDispose();
    init();
  };
  control->ToolbarDispose();
  EXPECT_NE(platform.windows.find("frmToolbar"), nullptr);
  EXPECT_TRUE(library.state.gFormLoaded[toolbarIndex]);
}

TEST_F(ControlDispose, CanBeFollowedByAnotherInit) {
  control->ToolbarDispose();
  take();
  EXPECT_EQ(init(), 0);
  EXPECT_EQ(toolbar().caption, "Zephra Toolbar: Windmill");
  EXPECT_EQ(styles().entries.size(), 3U);
  EXPECT_TRUE(library.state.gFormLoaded[toolbarIndex]);
}

TEST_F(ControlDispose, ResetsWhatTheToolbarRemembered) {
  show();
  bar("barWorld").press("Move");
  control->ToolbarDispose();
  init();
  EXPECT_EQ(toolbar().height.value, 735);
  EXPECT_EQ(bar("barWorld").button("Move").state, buttonUp);
  bar("barWorld").press("Move");
  EXPECT_EQ(toolbar().height.value, 1140);
}

TEST_F(ControlDispose, TheEndOfTheControlLetsTheModelGoFirstAndTouchesItNoMore) {
  showEverything();
  std::weak_ptr<headless::ScriptedObject> watched = model;
  model.reset();
  control.reset();
  EXPECT_TRUE(watched.expired());
  EXPECT_THAT(takeModelCalls(), IsEmpty());
  EXPECT_TRUE(platform.windows.living.empty());
  EXPECT_THAT(library.state.gForms, testing::Each(nullptr));
}

TEST_F(ControlDispose, TheEndOfTheControlHidesAndUnloadsInTheSameOrder) {
  showEverything();
  control.reset();
  const Lines lines = take();
  EXPECT_THAT(lines, IsSupersetOf({"frmToolbar: hide", "frmToolbar: unhook", "frmBrowser: unhook"}));
  EXPECT_EQ(std::count_if(lines.begin(), lines.end(), [](const std::string& l) { return l.ends_with(": unload"); }), 8);
  EXPECT_EQ(std::count_if(lines.begin(), lines.end(), [](const std::string& l) { return l.starts_with("box"); }), 0);
}

TEST_F(ControlDispose, TheEndOfTheControlClosesAnAboutBoxThatIsStillOpen) {
  platform.windows.duringModal = [this](headless::FormWindow&) { control.reset(); };
  library.about.ShowModal();
  EXPECT_TRUE(platform.windows.living.empty());
}

TEST_F(ControlDispose, AModelThatIsReleasedMayUseTheControl) {
  struct Releaser : headless::ScriptedObject {
    Releaser(headless::Transcript& transcript, NeridaWindow& control) : ScriptedObject(transcript), control(control) {}
    ~Releaser() override { control.ToolbarHide(); }
    NeridaWindow& control;
  };
  auto releaser = std::make_shared<Releaser>(platform.transcript, *control);
  releaser->values = model->values;
  releaser->functions = model->functions;
  control->ToolbarInit(releaser, 7);
  releaser.reset();
  control->ToolbarDispose();
  EXPECT_EQ(library.state.gModelObject, nullptr);
}

TEST_F(ControlDispose, AModelIsLetGoBeforeTheNextOneIsBound) {
  struct Witness : headless::ScriptedObject {
    Witness(headless::Transcript& transcript, const State& state, bool& alone)
        : ScriptedObject(transcript), state(state), alone(alone) {}
    ~Witness() override { alone = state.gModelObject == nullptr; }
    const State& state;
    bool& alone;
  };
  bool alone = false;
  auto witness = std::make_shared<Witness>(platform.transcript, library.state, alone);
  witness->values = model->values;
  witness->functions = model->functions;
  control->ToolbarInit(witness, 7);
  witness.reset();
  init();
  EXPECT_TRUE(alone);
}

}  // namespace
}  // namespace nerida

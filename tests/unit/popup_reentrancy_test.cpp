// A model that acts from inside a call that a popup makes: in every member that popups use, every way of taking the
// library down, and an error in each of them.
#include <algorithm>

#include "tests/unit/desk.h"

namespace nerida {
namespace {

struct Action {
  const char* name;
  void (*run)(Desk&);
};

void PrintTo(const Action& action, std::ostream* out) { *out << action.name; }

const char* const members[] = {"IsBackgroundDefault",
                               "IsLineColorDefault",
                               "IsSurfaceColorDefault",
                               "BackgroundColor",
                               "LineColor",
                               "SurfaceColor",
                               "RestoreDefaultBackgroundColor",
                               "RestoreDefaultLineColor",
                               "RestoreDefaultSurfaceColor",
                               "LineThicknessScale",
                               "LightIsOn",
                               "GetLightDirection",
                               "SetLightDirection",
                               "AnimationState",
                               "AnimationCurrentFrame",
                               "AnimationFrameCount",
                               "AnimationIncrementFrame",
                               "AnimationDecrementFrame",
                               "AnimationLoopState"};

headless::FormWindow* opened(Desk& desk, const char* form, const char* bar, int index, const char* key) {
  if (!desk.platform.windows.find("frmToolbar")) return nullptr;
  desk.pressWithMouse(desk.bar(bar, index), key);
  headless::FormWindow* window = desk.platform.windows.find(form);
  return window && window->isVisible() ? window : nullptr;
}

template <int index>
headless::FormWindow* openedPalette(Desk& desk) {
  constexpr const char* forms[] = {"", "frmLineColors", "frmSurfaceColors", "frmBackgroundColors"};
  constexpr const char* keys[] = {"", "LineColorFill", "SurfaceColorFill", "Background"};
  return opened(desk, forms[index], "barLS", index, keys[index]);
}

template <int index>
void chooseColor(Desk& desk) {
  if (auto* window = openedPalette<index>(desk)) window->picture("pnlColor").pressPart(3);
}

template <int index>
void chooseStyleDefault(Desk& desk) {
  if (auto* window = openedPalette<index>(desk)) window->picture("picLSSwatch").pressPart(0);
}

template <int index>
void chooseMoreColors(Desk& desk) {
  desk.platform.boxes.colorChoices.assign(3, Rgb{4711});
  if (auto* window = openedPalette<index>(desk)) window->picture("picMoreColors").pressPart(0);
}

// Presses a button of a popup's bar as far as it is still there.
void pressIn(headless::FormWindow* window, const char* bar, int index, const char* key) {
  if (window && window->isVisible()) window->bar(bar, index).buttonPress(key);
}

const Action scenes[] = {
    {"LineColor", chooseColor<1>},
    {"SurfaceColor", chooseColor<2>},
    {"BackgroundColor", chooseColor<3>},
    {"LineDefault", chooseStyleDefault<1>},
    {"SurfaceDefault", chooseStyleDefault<2>},
    {"BackgroundDefault", chooseStyleDefault<3>},
    {"MoreLineColors", chooseMoreColors<1>},
    {"MoreSurfaceColors", chooseMoreColors<2>},
    {"MoreBackgroundColors", chooseMoreColors<3>},
    {"Thickness",
     [](Desk& d) { pressIn(opened(d, "frmLineThicknessMenu", "barLS", 0, "LineThickness"), "barThick", 0, "Thick"); }},
    {"Light",
     [](Desk& d) {
       auto* window = opened(d, "frmLighting", "barWorld", 0, "Lighting");
       pressIn(window, "barLamp", 0, "LightT");
       pressIn(window, "barSwitch", 0, "SwitchOff");
       pressIn(window, "barSwitch", 0, "SwitchOn");
     }},
    {"Animation",
     [](Desk& d) {
       auto* window = opened(d, "frmAnimation", "barWorld", 1, "Animation");
       if (!window) return;
       pressIn(window, "barForward", 0, "NextFrame");
       pressIn(window, "barForward", 0, "LastFrame");
       pressIn(window, "barRewind", 0, "PreviousFrame");
       pressIn(window, "barLoop", 0, "LoopState");
       if (window->isVisible()) window->picture("picPlayPause").pressPart(0);
     }},
};

const Action undoings[] = {
    {"hide", [](Desk& d) { d.control->ToolbarHide(); }},
    {"dispose", [](Desk& d) { d.control->ToolbarDispose(); }},
    {"dispose and init",
     [](Desk& d) {
       d.control->ToolbarDispose();
       d.control->ToolbarInit(d.model, 7);
     }},
    {"release", [](Desk& d) { d.control.reset(); }},
};

// The toolbar up on a model that answers everything that popups ask, not in its style's colours.
void prepare(Desk& desk) {
  desk.enableStyleButtons();
  for (const char* member : {"IsBackgroundDefault", "IsLineColorDefault", "IsSurfaceColorDefault"}) {
    desk.model->values[member] = false;
  }
  desk.model->values["LineThicknessScale"] = std::int32_t{100};
  desk.model->values["LightIsOn"] = true;
  desk.model->values["AnimationFrameCount"] = std::int32_t{12};
  desk.model->values["AnimationLoopState"] = true;
  for (const char* member : {"SetLightDirection", "AnimationIncrementFrame", "AnimationDecrementFrame"}) {
    desk.model->functions[member] = nullptr;
  }
  desk.model->functions["GetLightDirection"] = [](std::span<Argument>) { return Value(std::int32_t{0}); };
  desk.createInitAndShow();
  desk.answerBoxes(20);
}

bool isPopup(const std::string& name) { return name != "frmToolbar" && name != "frmBrowser"; }

int visiblePopups(Desk& desk) {
  int count = 0;
  for (const headless::FormWindow* window : desk.platform.windows.living) {
    count += isPopup(window->layout.name) && window->isVisible() ? 1 : 0;
  }
  return count;
}

void expectNoLatchedButton(Desk& desk) {
  const std::pair<int, const char*> styleButtons[] = {
      {0, "LineThickness"}, {1, "LineColorFill"}, {2, "SurfaceColorFill"}, {3, "Background"}};
  for (const auto& [index, key] : styleButtons) EXPECT_EQ(desk.bar("barLS", index).button(key).state, buttonUp) << key;
  EXPECT_EQ(desk.bar("barWorld").button("Lighting").state, buttonUp);
}

std::ptrdiff_t countOf(const Lines& lines, const std::string& form, const std::string& what) {
  return std::ranges::count_if(lines, [&](const std::string& line) { return line.starts_with(form + ": " + what); });
}

// Each popup goes once for each time that it came. That the toolbar has gone is told once; who binds a model tells it
// its toolbar's state, too.
void expectEachClosedOnce(const Lines& happened) {
  for (const char* form : {"frmLineThicknessMenu", "frmLineColors", "frmSurfaceColors", "frmBackgroundColors",
                           "frmLighting", "frmAnimation"}) {
    EXPECT_EQ(countOf(happened, form, "hide"), countOf(happened, form, "show topmost")) << form;
  }
  EXPECT_EQ(countOf(happened, "frmToolbar", "hide"), 1);
  EXPECT_LE(countOf(happened, "model", "IsToolbarShowing = False"), 1 + countOf(happened, "model", "GetLookStyleList"));
}

// A toolbar that is up again opens each popup at the first press.
void expectEveryButtonOpensAtOnce(Desk& desk) {
  for (const Action& scene : scenes) {
    SCOPED_TRACE(scene.name);
    desk.take();
    scene.run(desk);
    EXPECT_TRUE(desk.takeBoxes().empty());
    desk.control->ToolbarHide();
    desk.show();
  }
}

class PopupCalls : public testing::TestWithParam<Action> {};

TEST_P(PopupCalls, SurviveBeingUndoneFromInsideAnyMember) {
  int times = 0;
  for (const char* member : members) {
    for (const Action& undoing : undoings) {
      SCOPED_TRACE(std::string("inside ") + member + ": " + undoing.name);
      Desk desk;
      prepare(desk);
      bool undone = false;
      desk.model->hooks[member] = [&] {
        desk.model->hooks.clear();
        undone = true;
        undoing.run(desk);
      };
      desk.take();
      GetParam().run(desk);
      if (!undone) continue;
      ++times;
      expectEachClosedOnce(desk.take());
      desk.model->hooks.clear();
      EXPECT_EQ(visiblePopups(desk), 0);
      if (desk.platform.windows.find("frmToolbar")) expectNoLatchedButton(desk);
      desk.control.reset();
      EXPECT_TRUE(desk.platform.windows.living.empty());
      EXPECT_EQ(desk.library.state.unloading, 0);
      EXPECT_EQ(desk.model.use_count(), 1);
    }
  }
  EXPECT_GT(times, 0);
}

TEST_P(PopupCalls, LeaveLatchesAndPopupsInStepWhenAMemberFails) {
  for (const char* member : members) {
    for (const std::int32_t number : {5, 7, 438}) {
      SCOPED_TRACE(std::string(member) + " fails with " + std::to_string(number));
      Desk desk;
      prepare(desk);
      desk.model->failures.emplace(member, Error(number));
      GetParam().run(desk);
      desk.model->failures.clear();
      desk.control->ToolbarHide();
      EXPECT_EQ(visiblePopups(desk), 0);
      expectNoLatchedButton(desk);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Scenes, PopupCalls, testing::ValuesIn(scenes));

TEST(PopupCallsAfterwards, OpenAtOnceWhateverFailedBefore) {
  for (const char* member : {"IsSurfaceColorDefault", "LineThicknessScale", "LightIsOn", "AnimationState"}) {
    SCOPED_TRACE(member);
    Desk desk;
    prepare(desk);
    desk.model->failures.emplace(member, Error(5));
    for (const Action& scene : scenes) scene.run(desk);
    desk.model->failures.clear();
    desk.platform.boxes.answers.clear();
    desk.control->ToolbarHide();
    desk.show();
    expectEveryButtonOpensAtOnce(desk);
  }
}

}  // namespace
}  // namespace nerida

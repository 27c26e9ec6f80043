// The playback bar: how it is built, what playing and pausing do, its buttons, how it reports failures and closes.
#include "tests/unit/desk.h"

namespace nerida {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class Animation : public DeskTest {
 protected:
  void SetUp() override {
    setFrames(3, 10);
    model->values["AnimationLoopState"] = true;
    model->functions["AnimationIncrementFrame"] = nullptr;
    model->functions["AnimationDecrementFrame"] = nullptr;
    createInitAndShow();
  }

  void setFrames(std::int32_t current, std::int32_t count) {
    model->values["AnimationCurrentFrame"] = current;
    model->values["AnimationFrameCount"] = count;
  }

  frmAnimation& popup() { return library.animation; }
  headless::FormWindow& window() const { return form("frmAnimation"); }
  headless::Bar& bar(const char* name) const { return window().bar(name); }
  headless::Picture& button() const { return window().picture("picPlayPause"); }
  headless::Text& txtFrame() const { return window().text("txtFrame"); }

  void open(bool playing = false) {
    model->values["AnimationState"] = playing;
    popup().ShowSelf(1, 1);
    take();
  }

  static Lines playing(const Lines& reads) {
    Lines lines = {"barForward: hidden",      "barRewind: hidden",       "picAniFrame(0): visible",
                   "picAniFrame(1): visible", "picAniFrame(2): visible", "picAniFrame(3): visible",
                   "txtFrame: text  -- "};
    lines.insert(lines.end(), reads.begin(), reads.end());
    lines.push_back("model: AnimationState = True");
    return lines;
  }
  static Lines pausing(const std::string& frame) {
    return {"barForward: enabled",          "barForward: show Enabled",     "barRewind: enabled",
            "barRewind: show Enabled",      "barForward: visible",          "barRewind: visible",
            "picAniFrame(0): hidden",       "picAniFrame(1): hidden",       "picAniFrame(2): hidden",
            "picAniFrame(3): hidden",       "model: AnimationCurrentFrame", "txtFrame: text " + frame,
            "model: AnimationState = False"};
  }
  const Lines readsOnTheWay{"model: AnimationCurrentFrame", "model: AnimationFrameCount"};
};

TEST_F(Animation, BuildsItsThreeBars) {
  popup().unload();
  take();
  popup().load();
  const auto settings = [](const std::string& name, const std::string& enabled) {
    return Lines{name + ": " + enabled, name + ": folder C:\\Zephra\\System", name + ": tooltips on",
                 name + ": file Toolbar.res"};
  };
  Lines expected = {"frmAnimation: load"};
  const auto append = [&](const Lines& lines) { expected.insert(expected.end(), lines.begin(), lines.end()); };
  append(settings("barRewind", "disabled"));
  append({"barRewind: open Enabled", "barRewind: add FirstFrame", "barRewind: tooltip First Frame",
          "barRewind: add PreviousFrame", "barRewind: tooltip Previous Frame", "barRewind: lay out",
          "barRewind: show Enabled"});
  append(settings("barForward", "disabled"));
  append({"barForward: open Enabled", "barForward: add NextFrame", "barForward: tooltip Next Frame",
          "barForward: add LastFrame", "barForward: tooltip Last frame", "barForward: lay out",
          "barForward: show Enabled"});
  append(settings("barLoop", "enabled"));
  append({"barLoop: open Default", "barLoop: add LoopState", "barLoop: tooltip Single Playback", "barLoop: lay out",
          "barLoop: open NotLooping", "barLoop: add NoLoop", "barLoop: tooltip Repeat Playback", "barLoop: lay out",
          "barLoop: show Default"});
  EXPECT_EQ(take(), expected);
  EXPECT_TRUE(library.state.gFormLoaded[animationIndex]);
}

TEST_F(Animation, ItsButtonsHaveTheirPictures) {
  popup().load();
  const struct {
    const char *bar, *key, *spec;
  } rows[] = {
      {"barRewind", "FirstFrame", "5, ani1stFrame.bmp, 0,0"}, {"barRewind", "PreviousFrame", "5, aniBack1.bmp, 23,0"},
      {"barForward", "NextFrame", "5, aniAhead1.bmp, 0,0"},   {"barForward", "LastFrame", "5, aniLastFrame.bmp, 23,0"},
      {"barLoop", "LoopState", "5, aniLoop.bmp, 0,0"},        {"barLoop", "NoLoop", "5, aniNoLoop.bmp, 0,0"}};
  for (const auto& row : rows) EXPECT_EQ(bar(row.bar).button(row.key).bitmapSpec, row.spec) << row.key;
}

TEST_F(Animation, OpensOnAPausedModelAndSendsItsStateAgain) {
  popup().load();
  take();
  popup().ShowSelf(60, 70);
  Lines expected = pausing("4");
  expected.insert(expected.begin(), "model: AnimationState");
  expected.insert(expected.end(), {"frmAnimation: show topmost at (60, 70)", "picPlayPause: repaint"});
  EXPECT_EQ(take(), expected);
  EXPECT_TRUE(library.state.gFormShown[animationIndex]);
  EXPECT_EQ(button().tooltip, "Play");
}

TEST_F(Animation, OpensOnAPlayingModelWithPlaceholders) {
  popup().load();
  take();
  model->values["AnimationState"] = std::int16_t{1};
  popup().ShowSelf(60, 70);
  Lines expected = playing(readsOnTheWay);
  expected.insert(expected.begin(), "model: AnimationState");
  expected.insert(expected.end(), {"frmAnimation: show topmost at (60, 70)", "picPlayPause: repaint"});
  EXPECT_EQ(take(), expected);
  EXPECT_EQ(button().tooltip, "Pause");
}

TEST_F(Animation, PlayingStartsAgainOnlyFromTheLastFrameOrBeyond) {
  const struct {
    std::int32_t current, count;
    bool restarts;
  } cases[] = {{0, 10, false},        {8, 10, false}, {9, 10, true},
               {10, 10, true},        {0, 1, true},   {0, 0, true},
               {-1, 0, true},         {-2, 0, false}, {0, -2147483647 - 1, true},
               {2147483647, 10, true}};
  open();
  for (const auto& c : cases) {
    setFrames(c.current, c.count);
    popup().SetPlay();
    Lines reads = readsOnTheWay;
    if (c.restarts) reads.push_back("model: AnimationCurrentFrame = 0%");
    EXPECT_EQ(take(), playing(reads)) << c.current << " of " << c.count;
  }
}

TEST_F(Animation, PausingShowsTheFrameCountedFromOne) {
  open();
  for (const auto& [frame, text] :
       std::map<std::int32_t, std::string>{{0, "1"}, {9, "10"}, {2147483647, "2147483648"}}) {
    setFrames(frame, 10);
    popup().SetPause();
    EXPECT_EQ(take(), pausing(text));
  }
}

TEST_F(Animation, AClickTogglesPlaying) {
  open();
  button().pressAt({10}, {10});
  EXPECT_THAT(take(), ElementsAre("picPlayPause: repaint"));
  button().pressAt({10}, {10});
  EXPECT_THAT(take(), IsEmpty());
  button().releaseAt({-500}, {9000});  // the place does not count
  Lines expected = playing(readsOnTheWay);
  expected.push_back("picPlayPause: repaint");
  EXPECT_EQ(take(), expected);
  button().pressAt({10}, {10});
  take();
  button().releaseAt({10}, {10});
  expected = pausing("4");
  expected.push_back("picPlayPause: repaint");
  EXPECT_EQ(take(), expected);
}

TEST_F(Animation, LettingGoWithoutAPressTogglesNothing) {
  open();
  button().releaseAt({10}, {10});
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(Animation, TheButtonIsHotUnderThePointer) {
  open();
  button().movePointer({10}, {10});
  EXPECT_THAT(take(), ElementsAre("picPlayPause: repaint"));
  button().movePointer({11}, {10});
  EXPECT_THAT(take(), IsEmpty());
  window().mouseMoved();
  EXPECT_THAT(take(), ElementsAre("picPlayPause: repaint"));
  window().mouseMoved();
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(Animation, APressEndsOnlyWhereTheButtonComesUp) {
  open();
  button().pressAt({10}, {10});
  take();
  window().mouseMoved();
  window().mouseMoved();
  EXPECT_THAT(take(), ElementsAre("picPlayPause: repaint", "picPlayPause: repaint"));
  button().releaseAt({10}, {10});
  EXPECT_THAT(takeModelCalls(), Contains("model: AnimationState = True"));
}

TEST_F(Animation, KeyboardAndAssistiveToolsPressTheButton) {
  open();
  EXPECT_EQ(button().parts().at(0).name, "Play");
  EXPECT_TRUE(button().key(Key::choose));
  EXPECT_THAT(takeModelCalls(), Contains("model: AnimationState = True"));
  EXPECT_EQ(button().parts().at(0).name, "Pause");
  button().pressPart(0);
  EXPECT_THAT(takeModelCalls(), Contains("model: AnimationState = False"));
  EXPECT_FALSE(button().key(Key::left));
}

TEST_F(Animation, StepButtonsMoveTheFrameAndShowItFromOne) {
  open();
  const struct {
    const char *bar, *key, *call;
  } cases[] = {{"barRewind", "PreviousFrame", "model: AnimationDecrementFrame"},
               {"barRewind", "FirstFrame", "model: AnimationCurrentFrame = 0%"},
               {"barForward", "NextFrame", "model: AnimationIncrementFrame"}};
  for (const auto& c : cases) {
    setFrames(3, 10);
    bar(c.bar).press(c.key);
    EXPECT_THAT(take(), ElementsAre(c.call, "model: AnimationCurrentFrame", StartsWith("txtFrame: text "))) << c.key;
  }
  EXPECT_EQ(txtFrame().content, "4");
  bar("barForward").press("LastFrame");
  EXPECT_THAT(take(), ElementsAre("model: AnimationFrameCount", "model: AnimationCurrentFrame = 9%",
                                  "model: AnimationCurrentFrame", "txtFrame: text 10"));
}

TEST_F(Animation, BoundsAreTheModelsConcern) {
  open();
  setFrames(9, 10);
  bar("barForward").press("NextFrame");
  EXPECT_THAT(takeModelCalls(), Contains("model: AnimationIncrementFrame"));
  setFrames(0, 1);
  bar("barRewind").press("PreviousFrame");
  EXPECT_THAT(takeModelCalls(), Contains("model: AnimationDecrementFrame"));
  bar("barForward").press("LastFrame");
  EXPECT_THAT(takeModelCalls(), Contains("model: AnimationCurrentFrame = 0%"));
}

TEST_F(Animation, UnknownKeysOnlyShowTheFrame) {
  open();
  bar("barRewind").buttonPress("LastFrame");
  bar("barForward").buttonPress("FirstFrame");
  EXPECT_THAT(take(), ElementsAre("model: AnimationCurrentFrame", "txtFrame: text 4", "model: AnimationCurrentFrame",
                                  "txtFrame: text 4"));
}

TEST_F(Animation, ALastFrameThatDoesNotFitIsAnOverflow) {
  open();
  setFrames(3, 32769);
  answerBoxes(1);
  bar("barForward").press("LastFrame");
  EXPECT_THAT(take(), ElementsAre("model: AnimationFrameCount", "box [Zephra Toolbar] Error occurred: 6: Overflow"));
  setFrames(3, 32768);
  bar("barForward").press("LastFrame");
  EXPECT_THAT(takeModelCalls(), Contains("model: AnimationCurrentFrame = 32767%"));
}

TEST_F(Animation, TheLoopButtonTurnsTheModelsStateWhateverItShows) {
  open();
  bar("barLoop").press("LoopState");
  EXPECT_THAT(take(), ElementsAre("model: AnimationLoopState", "model: AnimationLoopState = False",
                                  "barLoop: show NotLooping"));
  bar("barLoop").press("NoLoop");
  EXPECT_THAT(take(),
              ElementsAre("model: AnimationLoopState", "model: AnimationLoopState = True", "barLoop: show Default"));
}

TEST_F(Animation, TheLoopButtonIsNotBroughtIntoLineWhenThePopupOpens) {
  model->values["AnimationLoopState"] = false;
  popup().ShowSelf(1, 1);
  EXPECT_THAT(take(), Not(Contains("model: AnimationLoopState")));
  EXPECT_EQ(bar("barLoop").shownLayout, "Default");
  bar("barLoop").press("LoopState");
  EXPECT_EQ(bar("barLoop").shownLayout, "Default");
}

TEST_F(Animation, ForwardAndLoopTellTheFailureItself) {
  open();
  for (const std::int32_t number : {7, 1234}) {
    for (const char* member : {"AnimationIncrementFrame", "AnimationCurrentFrame"}) {
      model->failures.emplace(member, Error(number, "no more film"));
      answerBoxes(1);
      bar("barForward").press("NextFrame");
      EXPECT_THAT(takeBoxes(),
                  ElementsAre("box [Zephra Toolbar] Error occurred: " + std::to_string(number) + ": no more film"));
      model->failures.clear();
    }
    model->failures.emplace("AnimationLoopState", Error(number, "no more film"));
    answerBoxes(1);
    bar("barLoop").press("LoopState");
    EXPECT_THAT(takeBoxes(),
                ElementsAre("box [Zephra Toolbar] Error occurred: " + std::to_string(number) + ": no more film"));
    EXPECT_EQ(bar("barLoop").shownLayout, "Default");
    model->failures.clear();
  }
}

TEST_F(Animation, RewindAndPlayHaveTheGeneralMessage) {
  open();
  for (const std::int32_t number : {7, 1234}) {
    model->failures.insert_or_assign("AnimationDecrementFrame", Error(number));
    model->failures.insert_or_assign("AnimationCurrentFrame", Error(number));
    answerBoxes(4);
    bar("barRewind").press("PreviousFrame");
    bar("barRewind").press("FirstFrame");
    popup().SetPlay();
    popup().SetPause();
    EXPECT_THAT(takeBoxes(), ElementsAre(errorBox, errorBox, errorBox, errorBox)) << number;
  }
}

TEST_F(Animation, AButtonWhosePlayFailedKeepsItsGlyph) {
  open();
  model->failures.emplace("AnimationState", Error(5));
  answerBoxes(1);
  button().pressAt({1}, {1});
  button().releaseAt({1}, {1});
  EXPECT_EQ(take().back(), "picPlayPause: repaint");
  EXPECT_EQ(button().parts().at(0).name, "Pause");
}

TEST_F(Animation, AFailingPauseIsReportedAndThePopupStillOpens) {
  model->failures.emplace("AnimationCurrentFrame", Error(error::outOfMemory));
  answerBoxes(1);
  popup().ShowSelf(1, 1);
  EXPECT_THAT(takeBoxes(), ElementsAre(errorBox));
  EXPECT_TRUE(popup().isVisible());
}

TEST_F(Animation, AStateThatCannotBeReadGoesToTheCallerAndNothingShows) {
  model->failures.emplace("AnimationState", Error(1234));
  EXPECT_THROW(popup().ShowSelf(1, 1), Error);
  EXPECT_THAT(take(), ElementsAre("model: AnimationState"));
  EXPECT_FALSE(popup().isVisible());
  EXPECT_FALSE(library.state.gFormShown[animationIndex]);
}

TEST_F(Animation, ClosesOnce) {
  open();
  popup().HideSelf();
  popup().HideSelf();
  EXPECT_THAT(take(), ElementsAre("frmAnimation: hide", foregroundLine()));
  EXPECT_FALSE(library.state.gFormShown[animationIndex]);
  open();
  popup().HideSelf();
  EXPECT_THAT(take(), ElementsAre("frmAnimation: hide", foregroundLine()));
}

TEST_F(Animation, EscapeClosesIt) {
  open();
  window().userCloses();
  EXPECT_THAT(take(), ElementsAre("frmAnimation: hide", foregroundLine()));
}

TEST_F(Animation, StaysWhenTheFocusGoesElsewhere) {
  open();
  toolbar().userActivates();
  platform.windows.activateElsewhere();
  EXPECT_THAT(take(), Not(Contains("frmAnimation: hide")));
  EXPECT_TRUE(popup().isVisible());
}

TEST_F(Animation, AModelThatHidesTheToolbarInsideACallIsNotShownThePopup) {
  for (const char* member : {"AnimationState", "AnimationCurrentFrame"}) {
    model->hooks[member] = [this] { control->ToolbarHide(); };
    popup().ShowSelf(1, 1);
    EXPECT_FALSE(popup().isVisible()) << member;
    EXPECT_FALSE(library.state.gFormShown[animationIndex]) << member;
    model->hooks.clear();
    show();
  }
}

TEST_F(Animation, AModelThatDisposesOfTheToolbarInsideAClickEndsItQuietly) {
  open();
  model->hooks["AnimationState"] = [this] { control->ToolbarDispose(); };
  const auto release = button().mouseUp;
  button().pressAt({1}, {1});
  release({1}, {1});
  EXPECT_FALSE(popup().isLoaded());
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

// Hands out a playback window whose first button is already there, so that its bars cannot be built.
class TakenFrame : public WindowFactory {
 public:
  explicit TakenFrame(WindowFactory& windows) : windows(windows) {}
  std::shared_ptr<Window> create(const FormLayout& layout) override {
    std::shared_ptr<Window> window = windows.create(layout);
    if (std::string_view(layout.name) == "frmAnimation") {
      window->buttonBar("barForward").openLayout("Enabled");
      window->buttonBar("barForward").addButton("NextFrame", "5, x.bmp, 0,0");
    }
    return window;
  }

 private:
  WindowFactory& windows;
};

TEST(AnimationThatCannotBeBuilt, IsReportedAndStaysLoaded) {
  headless::HeadlessPlatform platform;
  TakenFrame windows(platform.windows);
  Library library({platform.screen, windows, platform.boxes, platform.registry, platform.settings, platform.shell});
  library.state.controls = 1;
  platform.boxes.answers = {PromptAnswer::ok};
  library.animation.load();
  EXPECT_EQ(platform.transcript.take().back(), "box [Zephra Toolbar] Unable to initialize Animation toolbar");
  EXPECT_TRUE(library.state.gFormLoaded[animationIndex]);
  EXPECT_EQ(platform.windows.find("frmAnimation")->bar("barRewind").shownLayout, "Enabled");
}

}  // namespace
}  // namespace nerida

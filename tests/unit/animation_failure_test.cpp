// A playback bar whose model fails or takes the toolbar down, or that cannot be built.
#include "tests/unit/animation_desk.h"
#include "tests/unit/spoilt_windows.h"

namespace nerida {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class AnimationFailure : public AnimationTest {};

TEST_F(AnimationFailure, ALastFrameThatDoesNotFitIsAnOverflow) {
  open();
  setFrames(3, 32769);
  answerBoxes(1);
  bar("barForward").press("LastFrame");
  EXPECT_THAT(take(), ElementsAre("model: AnimationFrameCount", "box [Zephra Toolbar] Error occurred: 6: Overflow"));
  setFrames(3, 32768);
  bar("barForward").press("LastFrame");
  EXPECT_THAT(takeModelCalls(), Contains("model: AnimationCurrentFrame = 32767%"));
}

TEST_F(AnimationFailure, ForwardAndLoopTellTheFailureItself) {
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

TEST_F(AnimationFailure, RewindAndPlayHaveTheGeneralMessage) {
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

TEST_F(AnimationFailure, PlayingEndsWhereTheModelFails) {
  open();
  const Lines shown = playing({});
  const auto upTo = [&](Lines more) {
    Lines lines(shown.begin(), shown.end() - 1);
    lines.insert(lines.end(), more.begin(), more.end());
    lines.push_back(errorBox);
    return lines;
  };
  answerBoxes(3);
  model->failures.emplace("AnimationFrameCount", Error(error::outOfMemory));
  popup().SetPlay();
  EXPECT_EQ(take(), upTo({"model: AnimationCurrentFrame", "model: AnimationFrameCount"}));
  EXPECT_EQ(button().tooltip, "Play");
  model->failures.clear();
  model->values["AnimationCurrentFrame"] = std::string("the last one");
  popup().SetPlay();
  EXPECT_EQ(take(), upTo({"model: AnimationCurrentFrame"}));
  setFrames(3, 10);
  model->failures.emplace("AnimationState", Error(5));
  popup().SetPlay();
  EXPECT_EQ(take(),
            upTo({"model: AnimationCurrentFrame", "model: AnimationFrameCount", "model: AnimationState = True"}));
  EXPECT_EQ(button().tooltip, "Pause");
}

TEST_F(AnimationFailure, PausingEndsWhereTheModelFails) {
  open(true);
  answerBoxes(2);
  model->failures.emplace("AnimationCurrentFrame", Error(5));
  popup().SetPause();
  EXPECT_THAT(takeModelCalls(), ElementsAre("model: AnimationCurrentFrame"));
  EXPECT_EQ(button().tooltip, "Pause");
  model->failures.clear();
  model->failures.emplace("AnimationState", Error(5));
  popup().SetPause();
  EXPECT_THAT(take(), testing::IsSupersetOf({"txtFrame: text 4", "model: AnimationState = False", errorBox.c_str()}));
  EXPECT_EQ(button().tooltip, "Play");
}

TEST_F(AnimationFailure, AButtonWhosePlayFailedKeepsItsGlyph) {
  open();
  model->failures.emplace("AnimationState", Error(5));
  answerBoxes(1);
  button().pressAt({1}, {1});
  button().releaseAt({1}, {1});
  EXPECT_EQ(take().back(), "picPlayPause: repaint");
  EXPECT_EQ(button().parts().at(0).name, "Pause");
}

TEST_F(AnimationFailure, AFailingPauseIsReportedAndThePopupStillOpens) {
  model->failures.emplace("AnimationCurrentFrame", Error(error::outOfMemory));
  answerBoxes(1);
  popup().ShowSelf(1, 1);
  EXPECT_THAT(takeBoxes(), ElementsAre(errorBox));
  EXPECT_TRUE(popup().isVisible());
}

TEST_F(AnimationFailure, AStateThatCannotBeReadGoesToTheCallerAndNothingShows) {
  model->failures.emplace("AnimationState", Error(1234));
  EXPECT_THROW(popup().ShowSelf(1, 1), Error);
  EXPECT_THAT(take(), ElementsAre("model: AnimationState"));
  EXPECT_FALSE(popup().isVisible());
  EXPECT_FALSE(library.state.gFormShown[animationIndex]);
}

TEST_F(AnimationFailure, AStateThatIsNoTruthIsReportedByTheToolbar) {
  model->values["AnimationState"] = std::string("running");
  answerBoxes(1);
  DeskTest::bar("barWorld", 1).press("Animation");
  EXPECT_THAT(takeBoxes(), ElementsAre(errorBox));
  EXPECT_FALSE(popup().isVisible());
}

TEST_F(AnimationFailure, AModelThatHidesTheToolbarInsideACallIsNotShownThePopup) {
  for (const char* member : {"AnimationState", "AnimationCurrentFrame"}) {
    model->hooks[member] = [this] { control->ToolbarHide(); };
    take();
    popup().ShowSelf(1, 1);
    EXPECT_EQ(takeModelCalls().back(), member == std::string("AnimationState") ? "model: IsToolbarShowing = False"
                                                                               : "model: AnimationState = False");
    EXPECT_FALSE(popup().isVisible()) << member;
    EXPECT_FALSE(library.state.gFormShown[animationIndex]) << member;
    model->hooks.clear();
    show();
  }
}

TEST_F(AnimationFailure, AModelThatDisposesOfTheToolbarInsideAClickEndsItQuietly) {
  open();
  model->hooks["AnimationState"] = [this] { control->ToolbarDispose(); };
  const auto release = button().mouseUp;
  button().pressAt({1}, {1});
  release({1}, {1});
  EXPECT_FALSE(popup().isLoaded());
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST(AnimationThatCannotBeBuilt, IsReportedAndStaysLoaded) {
  headless::HeadlessPlatform platform;
  SpoiltWindows windows(platform.windows, {"frmAnimation", "barForward", "Enabled", "NextFrame", "5, x.bmp, 0,0"});
  Library library({platform.screen, windows, platform.boxes, platform.registry, platform.settings, platform.shell,
                   platform.files, platform.search});
  library.state.controls = 1;
  platform.boxes.answers = {PromptAnswer::ok};
  library.animation.load();
  EXPECT_EQ(platform.transcript.take().back(), "box [Zephra Toolbar] Unable to initialize Animation toolbar");
  EXPECT_TRUE(library.state.gFormLoaded[animationIndex]);
  EXPECT_EQ(platform.windows.find("frmAnimation")->bar("barRewind").shownLayout, "Enabled");
}

}  // namespace
}  // namespace nerida

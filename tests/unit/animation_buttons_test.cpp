// The buttons of the playback bar: play and pause, steps, and the playback mode.
#include "tests/unit/animation_desk.h"

namespace nerida {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class AnimationButtons : public AnimationTest {};

TEST_F(AnimationButtons, AClickTogglesPlaying) {
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

TEST_F(AnimationButtons, LettingGoWithoutAPressTogglesNothing) {
  open();
  button().releaseAt({10}, {10});
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(AnimationButtons, TheButtonIsHotUnderThePointer) {
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

TEST_F(AnimationButtons, APointerThatLeavesThePopupLeavesItsButton) {
  open();
  button().movePointer({10}, {10});
  take();
  window().mouseLeft();
  EXPECT_THAT(take(), ElementsAre("picPlayPause: repaint"));
}

TEST_F(AnimationButtons, APressEndsOnlyWhereTheButtonComesUp) {
  open();
  button().pressAt({10}, {10});
  take();
  window().mouseMoved();
  window().mouseMoved();
  EXPECT_THAT(take(), ElementsAre("picPlayPause: repaint", "picPlayPause: repaint"));
  button().releaseAt({10}, {10});
  EXPECT_THAT(takeModelCalls(), Contains("model: AnimationState = True"));
}

TEST_F(AnimationButtons, KeyboardAndAssistiveToolsPressTheButton) {
  open();
  EXPECT_EQ(button().parts().at(0).name, "Play");
  EXPECT_TRUE(button().key(Key::choose));
  EXPECT_THAT(takeModelCalls(), Contains("model: AnimationState = True"));
  EXPECT_EQ(button().parts().at(0).name, "Pause");
  button().pressPart(0);
  EXPECT_THAT(takeModelCalls(), Contains("model: AnimationState = False"));
  EXPECT_FALSE(button().key(Key::left));
}

TEST_F(AnimationButtons, StepButtonsMoveTheFrameAndShowItFromOne) {
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

TEST_F(AnimationButtons, BoundsAreTheModelsConcern) {
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

TEST_F(AnimationButtons, UnknownKeysOnlyShowTheFrame) {
  open();
  bar("barRewind").buttonPress("LastFrame");
  bar("barForward").buttonPress("FirstFrame");
  EXPECT_THAT(take(), ElementsAre("model: AnimationCurrentFrame", "txtFrame: text 4", "model: AnimationCurrentFrame",
                                  "txtFrame: text 4"));
}

TEST_F(AnimationButtons, TheLoopButtonTurnsTheModelsStateWhateverItShows) {
  open();
  bar("barLoop").press("LoopState");
  EXPECT_THAT(take(), ElementsAre("model: AnimationLoopState", "model: AnimationLoopState = False",
                                  "barLoop: show NotLooping"));
  bar("barLoop").press("NoLoop");
  EXPECT_THAT(take(),
              ElementsAre("model: AnimationLoopState", "model: AnimationLoopState = True", "barLoop: show Default"));
}

TEST_F(AnimationButtons, TheLoopButtonIsNotBroughtIntoLineWhenThePopupOpens) {
  model->values["AnimationLoopState"] = false;
  popup().ShowSelf(1, 1);
  EXPECT_THAT(take(), Not(Contains("model: AnimationLoopState")));
  EXPECT_EQ(bar("barLoop").shownLayout, "Default");
  bar("barLoop").press("LoopState");
  EXPECT_EQ(bar("barLoop").shownLayout, "Default");
}

}  // namespace
}  // namespace nerida

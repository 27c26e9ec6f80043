// The playback bar: how it is built, what opening, playing and pausing do, and how it closes.
#include "tests/unit/animation_desk.h"

namespace nerida {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class Animation : public AnimationTest {};

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

TEST_F(Animation, ClosesOnceBeforeItHasEverShownAndRemembersThat) {
  popup().load();
  take();
  popup().HideSelf();
  EXPECT_THAT(take(), ElementsAre("frmAnimation: hide", foregroundLine()));
  popup().unload();
  popup().load();
  take();
  popup().HideSelf();
  EXPECT_THAT(take(), IsEmpty());
}

TEST_F(Animation, OpenedByKeyboardStartsOnThePlayButton) {
  open();
  EXPECT_NE(platform.windows.focus.holder, &button()) << "nobody uses the keyboard";
  popup().HideSelf();
  platform.windows.focus.isShown = true;
  for (const bool playing : {false, true}) {
    open(playing);
    EXPECT_EQ(platform.windows.focus.holder, &button());
    popup().HideSelf();
  }
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

}  // namespace
}  // namespace nerida

#include <gtest/gtest.h>

#include <cmath>

#include "host/scene/playback.h"

namespace nerida {
namespace {

Playback tenFrames() {
  Playback playback;
  playback.reset(10, 10);
  return playback;
}

TEST(Playback, framesStayWithinTheBounds) {
  Playback playback = tenFrames();
  playback.decrement();
  EXPECT_EQ(playback.currentFrame(), 0);
  playback.setCurrentFrame(99);
  EXPECT_EQ(playback.currentFrame(), 9);
  playback.increment();
  EXPECT_EQ(playback.currentFrame(), 9);
  playback.setCurrentFrame(-32'768);
  EXPECT_EQ(playback.currentFrame(), 0);
  playback.increment();
  EXPECT_EQ(playback.currentFrame(), 1);
}

TEST(Playback, withoutFramesNothingPlays) {
  Playback playback;
  playback.setPlaying(true);
  EXPECT_FALSE(playback.playing());
  playback.setCurrentFrame(5);
  EXPECT_EQ(playback.currentFrame(), 0);
  EXPECT_FALSE(playback.tick(1));
}

TEST(Playback, timeMovesTheFrame) {
  Playback playback = tenFrames();
  playback.setPlaying(true);
  EXPECT_FALSE(playback.tick(0.05));
  EXPECT_TRUE(playback.tick(0.06));
  EXPECT_EQ(playback.currentFrame(), 1);
  EXPECT_TRUE(playback.tick(0.30));
  EXPECT_EQ(playback.currentFrame(), 4);
}

TEST(Playback, smallTicksAddUp) {
  Playback playback = tenFrames();
  playback.setPlaying(true);
  for (int i = 0; i < 51; ++i) playback.tick(0.01);
  EXPECT_EQ(playback.currentFrame(), 5);
}

TEST(Playback, playedOnceItStopsOnTheLastFrame) {
  Playback playback = tenFrames();
  playback.setLooping(false);
  playback.setPlaying(true);
  EXPECT_TRUE(playback.tick(5));
  EXPECT_EQ(playback.currentFrame(), 9);
  EXPECT_FALSE(playback.playing());
  EXPECT_FALSE(playback.tick(5));
}

TEST(Playback, unlessToldOtherwiseItStartsOver) {
  Playback playback = tenFrames();
  EXPECT_TRUE(playback.looping());
  playback.setPlaying(true);
  EXPECT_TRUE(playback.tick(1.25));
  EXPECT_EQ(playback.currentFrame(), 2);
  EXPECT_TRUE(playback.playing());
}

TEST(Playback, theTimerHoldsAPlayingAnimation) {
  Playback playback = tenFrames();
  playback.setPlaying(true);
  playback.stopTimer();
  EXPECT_FALSE(playback.tick(0.5));
  EXPECT_TRUE(playback.playing());
  EXPECT_FALSE(playback.advancing());
  playback.startTimer();
  EXPECT_TRUE(playback.tick(0.5));
  EXPECT_EQ(playback.currentFrame(), 5);
}

TEST(Playback, theTimerAloneDoesNotPlay) {
  Playback playback = tenFrames();
  playback.startTimer();
  EXPECT_FALSE(playback.tick(0.5));
  EXPECT_EQ(playback.currentFrame(), 0);
}

TEST(Playback, pausingKeepsTheFrame) {
  Playback playback = tenFrames();
  playback.setPlaying(true);
  playback.tick(0.45);
  playback.setPlaying(false);
  EXPECT_FALSE(playback.tick(1));
  EXPECT_EQ(playback.currentFrame(), 4);
}

TEST(Playback, absurdTimesAreHarmless) {
  Playback playback = tenFrames();
  playback.setLooping(true);
  playback.setPlaying(true);
  EXPECT_FALSE(playback.tick(-1));
  EXPECT_FALSE(playback.tick(std::nan("")));
  playback.tick(1e300);
  EXPECT_LT(playback.currentFrame(), 10);
  EXPECT_GE(playback.currentFrame(), 0);
}

}  // namespace
}  // namespace nerida

#pragma once

namespace nerida {

/// The frame that an animation shows, and its running. The frame is always within the bounds.
class Playback {
 public:
  void reset(int frames, double framesPerSecond);

  [[nodiscard]] int frameCount() const { return count; }
  [[nodiscard]] int currentFrame() const { return frame; }
  void setCurrentFrame(int wanted);  ///< clamped
  void increment() { setCurrentFrame(frame + 1); }
  void decrement() { setCurrentFrame(frame - 1); }

  [[nodiscard]] bool playing() const { return isPlaying; }
  void setPlaying(bool on);  ///< a model without frames never plays; setting true also starts the timer
  [[nodiscard]] bool looping() const { return isLooping; }
  void setLooping(bool on) { isLooping = on; }

  /// The timer moves the frame only while it runs and the animation plays.
  void startTimer() { timerRuns = true; }
  void stopTimer() { timerRuns = false; }
  [[nodiscard]] bool advancing() const { return isPlaying && timerRuns; }

  /// Lets `seconds` pass. At the end it starts over when looping; otherwise it stays on the last frame and
  /// playing() becomes false. True when the frame or playing() changed.
  bool tick(double seconds);

 private:
  int count = 0;
  int frame = 0;
  double rate = 24;
  double due = 0;  ///< part of a frame that has passed already
  bool isPlaying = false;
  bool isLooping = true;
  bool timerRuns = true;
};

}  // namespace nerida

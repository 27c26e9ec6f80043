#include "host/scene/playback.h"

#include <algorithm>
#include <cmath>

namespace nerida {

void Playback::reset(int frames, double framesPerSecond) {
  count = std::max(0, frames);
  rate = framesPerSecond;
  frame = 0;
  due = 0;
  isPlaying = false;
}

void Playback::setCurrentFrame(int wanted) {
  frame = std::clamp(wanted, 0, std::max(0, count - 1));
  due = 0;
}

void Playback::setPlaying(bool on) {
  isPlaying = on && count > 0;
  if (!isPlaying) return;
  timerRuns = true;
  due = 0;
}

bool Playback::tick(double seconds) {
  if (!advancing() || !(seconds > 0)) return false;
  const double passed = due + std::min(seconds, 3600.0) * rate;
  const double whole = std::floor(passed);
  due = passed - whole;
  const auto steps = static_cast<long long>(whole);
  const int before = frame;
  if (isLooping) {
    frame = static_cast<int>((frame + steps) % count);
  } else if (frame + steps >= count - 1) {
    frame = count - 1;
    isPlaying = false;
  } else {
    frame += static_cast<int>(steps);
  }
  return frame != before || !isPlaying;
}

}  // namespace nerida

#pragma once

#include <windows.h>

#include <algorithm>
#include <vector>

namespace nerida::bench {

/// Microseconds since some moment.
inline double now() {
  LARGE_INTEGER ticks = {}, perSecond = {};
  QueryPerformanceCounter(&ticks);
  QueryPerformanceFrequency(&perSecond);
  return static_cast<double>(ticks.QuadPart) * 1e6 / static_cast<double>(perSecond.QuadPart);
}

/// The mean of the middle half: unmoved by interruptions, and finer than the clock's ticks.
inline double middle(std::vector<double> samples) {
  std::sort(samples.begin(), samples.end());
  const std::size_t first = samples.size() / 4, last = samples.size() - first;
  double sum = 0;
  for (std::size_t i = first; i < last; ++i) sum += samples[i];
  return sum / static_cast<double>(last - first);
}

}  // namespace nerida::bench

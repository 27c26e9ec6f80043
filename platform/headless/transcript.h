#pragma once

#include <string>
#include <utility>
#include <vector>

namespace nerida::headless {

// What happened on the headless side, one line a call, in order. Everything headless writes into one transcript.
struct Transcript {
  std::vector<std::string> lines;

  void add(std::string line) { lines.push_back(std::move(line)); }
  // The lines since the last take.
  std::vector<std::string> take() { return std::exchange(lines, {}); }
};

}  // namespace nerida::headless

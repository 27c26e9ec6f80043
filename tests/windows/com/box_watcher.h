#pragma once

#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace nerida {

// Stands in for the person in front of the screen: answers every message box of this process and remembers it.
class BoxWatcher {
 public:
  // answer is the identifier of the button to press.
  explicit BoxWatcher(int answer);
  ~BoxWatcher();
  BoxWatcher(const BoxWatcher&) = delete;
  BoxWatcher& operator=(const BoxWatcher&) = delete;

  // "title: text" of the boxes so far.
  std::vector<std::string> seen();

 private:
  void watch(const std::stop_token& stop);
  void answerBoxes();

  int answer;
  std::mutex mutex;
  std::vector<std::string> boxes;
  std::jthread thread;
};

}  // namespace nerida

#pragma once

#include <deque>
#include <functional>
#include <string>

#include "platform/headless/transcript.h"
#include "platform/prompts.h"

namespace nerida::headless {

// Something waits for a user that the test has not provided. No code under test catches it.
struct TestEnded {
  std::string reason;
};

class Boxes : public Prompts {
 public:
  explicit Boxes(Transcript& transcript) : transcript(transcript) {}

  // Takes the next answer; a box without one ends the test.
  PromptAnswer messageBox(const std::string& text, PromptButtons buttons, const std::string& title) override;

  std::deque<PromptAnswer> answers;
  // Runs while a box is open.
  std::function<void()> duringBox;

 private:
  Transcript& transcript;
};

}  // namespace nerida::headless

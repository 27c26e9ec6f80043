#pragma once

#include <deque>
#include <functional>
#include <optional>
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

  // Takes the next colour choice; a dialog without one ends the test. It takes the activation while it is open.
  std::optional<Rgb> chooseColor(WindowHandle owner, Rgb start) override;

  std::deque<PromptAnswer> answers;
  // Runs while a box is open.
  std::function<void()> duringBox;
  std::deque<std::optional<Rgb>> colorChoices;  // nothing: the user cancels
  // Or what the user does with the colour that a dialog starts from.
  std::function<std::optional<Rgb>(Rgb start)> colorAnswer;
  // Runs while a colour dialog is open.
  std::function<void()> duringColorDialog;
  std::function<void(bool open)> colorDialogToggles;

 private:
  Transcript& transcript;
};

}  // namespace nerida::headless

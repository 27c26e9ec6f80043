#include "platform/headless/prompts.h"

namespace nerida::headless {

PromptAnswer Boxes::messageBox(const std::string& text, PromptButtons buttons, const std::string& title) {
  transcript.add("box [" + title + "] " + text + (buttons == PromptButtons::ok ? "" : " (Retry, Cancel)"));
  if (duringBox) duringBox();
  if (answers.empty()) throw TestEnded{text};
  const PromptAnswer answer = answers.front();
  answers.pop_front();
  return answer;
}

std::optional<Rgb> Boxes::chooseColor(WindowHandle owner, Rgb start) {
  transcript.add("color dialog of " + std::to_string(owner) + " from " + std::to_string(start));
  if (colorDialogToggles) colorDialogToggles(true);
  if (duringColorDialog) duringColorDialog();
  if (colorAnswer) colorChoices.push_back(colorAnswer(start));
  if (colorChoices.empty()) throw TestEnded{"a color dialog waits for a user"};
  const std::optional<Rgb> choice = colorChoices.front();
  colorChoices.pop_front();
  if (colorDialogToggles) colorDialogToggles(false);
  return choice;
}

}  // namespace nerida::headless

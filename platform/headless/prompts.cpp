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

}  // namespace nerida::headless

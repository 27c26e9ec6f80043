#pragma once

#include "platform/prompts.h"

namespace nerida {

class SystemPrompts : public Prompts {
 public:
  PromptAnswer messageBox(const std::string& text, PromptButtons buttons, const std::string& title) override;
  std::optional<Rgb> chooseColor(WindowHandle owner, Rgb start) override;
};

}  // namespace nerida

#pragma once

#include "platform/prompts.h"

namespace nerida {

class SystemPrompts : public Prompts {
 public:
  PromptAnswer messageBox(const std::string& text, PromptButtons buttons, const std::string& title) override;
};

}  // namespace nerida

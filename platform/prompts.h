#pragma once

#include <optional>
#include <string>

#include "platform/canvas.h"
#include "platform/units.h"

namespace nerida {

enum class PromptButtons { ok = 0, retryCancel = 5 };
enum class PromptAnswer { ok = 1, cancel = 2, retry = 4 };

// Everything that waits for a person.
class Prompts {
 public:
  virtual ~Prompts() = default;
  // A modal message box without an icon. An empty title shows the library's own name.
  virtual PromptAnswer messageBox(const std::string& text, PromptButtons buttons, const std::string& title) = 0;
  // The system's colour dialog, owned by a window and starting from a colour. Nothing when it is cancelled.
  virtual std::optional<Rgb> chooseColor(WindowHandle owner, Rgb start) = 0;
};

}  // namespace nerida

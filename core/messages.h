#pragma once

#include "platform/error.h"
#include "platform/prompts.h"

namespace nerida {

inline constexpr const char* toolbarTitle = "Zephra Toolbar";
inline constexpr const char* catalogTitle = "Zephra Catalog";

// The messages that forms share. Each is a modal box with an OK button and changes no state.
class Messages {
 public:
  explicit Messages(Prompts& prompts) : prompts(prompts) {}

  void ShowErrorMessage();
  void ShowToolbarErrorMessage();
  void ShowLowMemoryMessage();

  // The reporter of handlers that have no message of their own: running out of memory is told as such.
  void report(const Error& failure);

  void show(const std::string& text, const std::string& title);

 private:
  Prompts& prompts;
};

}  // namespace nerida

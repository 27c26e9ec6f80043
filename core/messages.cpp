#include "core/messages.h"

namespace nerida {

void Messages::ShowErrorMessage() {
  show(
      "Zephra has encountered an error.  Please de-activate Zephra by clicking "
      "off the object.  Double-click the object to re-activate Zephra",
      toolbarTitle);
}

void Messages::ShowToolbarErrorMessage() { show("Zephra is unable to display the editing toolbar. ", toolbarTitle); }

void Messages::ShowLowMemoryMessage() {
  show("Your system appears to be low on memory.  Please close some windows and/or programs.", toolbarTitle);
}

void Messages::report(const Error& failure) {
  if (failure.number == error::outOfMemory) {
    ShowLowMemoryMessage();
  } else {
    ShowErrorMessage();
  }
}

void Messages::show(const std::string& text, const std::string& title) {
  prompts.messageBox(text, PromptButtons::ok, title);
}

}  // namespace nerida

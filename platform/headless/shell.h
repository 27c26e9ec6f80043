#pragma once

#include "platform/headless/transcript.h"
#include "platform/shell.h"

namespace nerida::headless {

class RecordingShell : public Shell {
 public:
  explicit RecordingShell(Transcript& transcript) : transcript(transcript) {}

  void openHelp(WindowHandle, const std::string& file) override { transcript.add("help " + file); }

 private:
  Transcript& transcript;
};

}  // namespace nerida::headless

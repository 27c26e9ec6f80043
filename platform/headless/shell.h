#pragma once

#include "platform/headless/transcript.h"
#include "platform/shell.h"

namespace nerida::headless {

class RecordingShell : public Shell {
 public:
  explicit RecordingShell(Transcript& transcript) : transcript(transcript) {}

  void openHelp(WindowHandle, const std::string& file) override { transcript.add("help " + file); }
  bool open(WindowHandle, const std::string& target, const std::string& workingFolder, ShowCommand show) override {
    transcript.add("open " + target + " in " + workingFolder + " as " + std::to_string(static_cast<int>(show)));
    return opens;
  }

  bool opens = true;  // whether there is a program for what is opened

 private:
  Transcript& transcript;
};

}  // namespace nerida::headless

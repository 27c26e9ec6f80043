#include "catalog/model_library.h"

#include <cstdlib>
#include <limits>

#include "core/trap.h"
#include "platform/error.h"

namespace nerida {
namespace {

bool holdsLibrary(const Paths& paths, Files& files, const std::string& drive) {
  if (files.driveType(drive) != DriveType::cdRom) return false;
  bool holds = false;
  ignoringErrors([&] { holds = !files.firstFile(drive + paths.CdModelDirectory + "\\graphics\\").empty(); });
  return holds;
}

// All drives are looked at, so that the last one wins.
bool findDrive(Paths& paths, Files& files) {
  bool found = false;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const std::string drive = {letter, ':'};
    if (!holdsLibrary(paths, files, drive)) continue;
    paths.CdDrive = drive;
    found = true;
  }
  return found;
}

// A moment for the drive to spin up.
void waitForDrive() {
  for (volatile std::int32_t count = 1; count < 1'000'000;) count = count + 1;
}

std::int32_t checked(std::int64_t number) {
  if (number < std::numeric_limits<std::int32_t>::min() || number > std::numeric_limits<std::int32_t>::max()) {
    throw Error(error::overflow);
  }
  return static_cast<std::int32_t>(number);
}

// At least four digits; the sign does not count as one.
std::string fourDigits(std::int32_t number) {
  std::string digits = std::to_string(std::abs(std::int64_t{number}));
  if (digits.size() < 4) digits.insert(0, 4 - digits.size(), '0');
  return (number < 0 ? "-" : "") + digits;
}

}  // namespace

bool LocateModelLibrary(Paths& paths, Files& files, Prompts& prompts, Messages& messages) {
  while (!findDrive(paths, files)) {
    const PromptAnswer answer = prompts.messageBox(
        "Please insert Zephra CD into your CD-ROM drive.  "
        "Wait until the drive gets going and hit the Retry button.",
        PromptButtons::retryCancel, catalogTitle);
    if (answer != PromptAnswer::retry) {
      messages.show("Zephra was not able to verify the model CD.", catalogTitle);
      return false;
    }
    waitForDrive();
  }
  return true;
}

// The folders' numbers are filled up with zeros, the file's is not.
std::string modelFilePath(const std::string& library, std::int32_t number) {
  const std::int64_t n = number;
  const std::int64_t half = n % 10 < 5 ? 0 : 5;
  return library + "\\dv" + fourDigits(checked(n - n % 1000)) + "\\dv" + fourDigits(checked(n - n % 100)) + "\\dv" +
         fourDigits(checked(checked(n - n % 10) + half)) + "\\dv" + std::to_string(number) + ".twe";
}

std::string BuildModelPath(const Paths& paths, Messages& messages, std::int32_t number,
                           std::string (*scheme)(const std::string&, std::int32_t)) {
  std::string path;
  trap([&] { path = scheme(paths.ModelLibraryPath, number); },
       [&](const Error& failure) {
         messages.show("Error creting model path for " + std::to_string(number) + " " + std::to_string(failure.number) +
                           ": " + failure.description,
                       "");
       });
  return path;
}

}  // namespace nerida

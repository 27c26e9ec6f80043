// toolbar_bench MEASUREMENT [MODEL CYCLES]: one of those in bench/measurements.h, against the registered control.
#include "bench/measurements.h"

#include <ole2.h>

#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

namespace {

constexpr struct {
  std::string_view name;
  void (*run)();
} measurements[] = {
    {"first-toolbar", nerida::bench::firstToolbar}, {"first-bare", nerida::bench::firstBareToolbar},
    {"creations", nerida::bench::creations},        {"presses", nerida::bench::presses},
    {"toolbar-shown", nerida::bench::toolbarShown}, {"bare-shown", nerida::bench::bareToolbarShown},
    {"show-hide", nerida::bench::showingAndHiding}, {"palettes", nerida::bench::paletteOpenings},
    {"choices", nerida::bench::colorChoices},       {"long-lists", nerida::bench::longLists},
    {"hit-pictures", nerida::bench::hitPictures},
};

constexpr std::string_view popupCycles = "popup-cycles";  // the one that wants a model file and a number of cycles

// False when there is no such measurement.
bool measure(std::span<char* const> words) {
  if (words.size() == 3 && words[0] == popupCycles) {
    nerida::bench::popupCycles(words[1], std::atoi(words[2]));
    return true;
  }
  for (const auto& measurement : measurements) {
    if (words.size() != 1 || measurement.name != words[0]) continue;
    measurement.run();
    return true;
  }
  return false;
}

}  // namespace

int main(int count, char** arguments) {
  if (FAILED(OleInitialize(nullptr))) return 1;
  const bool known = measure({arguments + 1, arguments + count});
  OleUninitialize();
  if (!known) std::fprintf(stderr, "usage: toolbar_bench MEASUREMENT [MODEL CYCLES]\n");
  return known ? 0 : 2;
}

// toolbar_bench MEASUREMENT: one of those in bench/measurements.h, against the registered control.
#include "bench/measurements.h"

#include <ole2.h>

#include <cstdio>
#include <string_view>

namespace {

constexpr struct {
  std::string_view name;
  void (*run)();
} measurements[] = {
    {"first-toolbar", nerida::bench::firstToolbar}, {"first-bare", nerida::bench::firstBareToolbar},
    {"creations", nerida::bench::creations},        {"presses", nerida::bench::presses},
    {"toolbar-shown", nerida::bench::toolbarShown}, {"bare-shown", nerida::bench::bareToolbarShown},
    {"show-hide", nerida::bench::showingAndHiding},
};

}  // namespace

int main(int count, char** arguments) {
  for (const auto& measurement : measurements) {
    if (count != 2 || measurement.name != arguments[1]) continue;
    if (FAILED(OleInitialize(nullptr))) return 1;
    measurement.run();
    OleUninitialize();
    return 0;
  }
  std::fprintf(stderr, "usage: toolbar_bench MEASUREMENT\n");
  return 2;
}

// From nothing to a painted toolbar.
#include <cstdio>

#include "bench/bare_toolbar.h"
#include "bench/control.h"
#include "bench/measurements.h"
#include "bench/stopwatch.h"

namespace nerida::bench {
namespace {

double timeToolbar() {
  Model model;
  pumpMessages();
  const double start = now();
  const Control control(model);
  paintNow(control.window());
  return now() - start;
}

double timeBareToolbar() {
  pumpMessages();
  const double start = now();
  BareToolbar toolbar;
  toolbar.show();
  paintNow(toolbar.window());
  return now() - start;
}

}  // namespace

void firstToolbar() { std::printf("first.toolbar %.1f\n", timeToolbar()); }

void firstBareToolbar() {
  const double start = now();
  BareToolbar::prepare();
  const double prepared = now() - start;
  std::printf("first.bare %.1f\n", prepared + timeBareToolbar());
}

void creations() {
  constexpr int rounds = 60, warmUp = 5;
  BareToolbar::prepare();
  std::vector<double> toolbar, bare;
  for (int i = 0; i < warmUp + rounds; ++i) {
    const double ours = timeToolbar(), theirs = timeBareToolbar();
    if (i < warmUp) continue;
    toolbar.push_back(ours);
    bare.push_back(theirs);
  }
  std::printf("warm.toolbar %.1f\nwarm.bare %.1f\n", middle(toolbar), middle(bare));
}

}  // namespace nerida::bench

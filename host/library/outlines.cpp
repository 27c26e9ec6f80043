#include "host/library/outlines.h"

#include <algorithm>
#include <cmath>

namespace nerida::library {
namespace {

Vec onCircle(double radius, double angle) { return {radius * std::cos(angle), radius * std::sin(angle), 0}; }

}  // namespace

std::vector<Vec> starOutline(int points, double outer, double inner) {
  std::vector<Vec> outline;
  outline.reserve(2 * static_cast<std::size_t>(points));
  for (int i = 0; i < 2 * points; ++i) {
    outline.push_back(onCircle(i % 2 == 0 ? outer : inner, pi / 2 + pi * i / points));
  }
  return outline;
}

std::vector<Vec> gearOutline(int teeth, double outer, double inner) {
  std::vector<Vec> outline;
  // Each tooth takes half of its share at the foot and a third at the head.
  constexpr double foot = 0.25, head = 0.16;
  for (int i = 0; i < teeth; ++i) {
    const auto at = [&](double radius, double share) { return onCircle(radius, 2 * pi * (i + share) / teeth); };
    outline.push_back(at(inner, -foot));
    outline.push_back(at(outer, -head));
    outline.push_back(at(outer, head));
    outline.push_back(at(inner, foot));
  }
  return outline;
}

std::vector<Vec> heartOutline(double size) {
  std::vector<Vec> outline;
  constexpr int steps = 40;
  for (int i = 0; i < steps; ++i) {
    const double t = 2 * pi * i / steps;
    const double across = 16 * std::pow(std::sin(t), 3);
    const double up = 13 * std::cos(t) - 5 * std::cos(2 * t) - 2 * std::cos(3 * t) - std::cos(4 * t);
    outline.push_back({-across * size / 16, (up + 2.5) * size / 16, 0});
  }
  return outline;
}

std::vector<Vec> sliceOutline(double radius, double from, double to) {
  std::vector<Vec> outline{{0, 0, 0}};
  const int steps = std::max(2, static_cast<int>(std::abs(to - from) / 9));
  for (int i = 0; i <= steps; ++i) outline.push_back(onCircle(radius, (from + (to - from) * i / steps) * pi / 180));
  return outline;
}

}  // namespace nerida::library

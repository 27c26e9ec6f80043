#include "host/library/curves.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>

namespace nerida::library {
namespace {

Vec between(const Vec& before, const Vec& from, const Vec& to, const Vec& after, double t) {
  const Vec linear = (to - before) * 0.5;
  const Vec square = before - from * 2.5 + to * 2 - after * 0.5;
  const Vec cubic = (after - before) * 0.5 + (from - to) * 1.5;
  return from + linear * t + square * (t * t) + cubic * (t * t * t);
}

double turnOf(const Vec& a, const Vec& b, const Vec& c) { return cross(b - a, c - a).z; }

bool within(const Vec& point, const Vec& a, const Vec& b, const Vec& c) {
  return turnOf(a, b, point) >= 0 && turnOf(b, c, point) >= 0 && turnOf(c, a, point) >= 0;
}

bool isEar(const std::vector<Vec>& outline, const std::vector<std::uint32_t>& rest, std::size_t at) {
  const std::size_t count = rest.size();
  const std::uint32_t ia = rest[(at + count - 1) % count], ib = rest[at], ic = rest[(at + 1) % count];
  if (turnOf(outline[ia], outline[ib], outline[ic]) <= 0) return false;
  return std::ranges::none_of(rest, [&](std::uint32_t i) {
    return i != ia && i != ib && i != ic && within(outline[i], outline[ia], outline[ib], outline[ic]);
  });
}

}  // namespace

std::vector<Vec> smoothCurve(const std::vector<Vec>& points, int steps, bool closed) {
  const auto count = static_cast<std::ptrdiff_t>(points.size());
  if (count < 3) return points;
  const auto at = [&](std::ptrdiff_t i) {
    return points[static_cast<std::size_t>(closed ? (i + count) % count : std::clamp<std::ptrdiff_t>(i, 0, count - 1))];
  };
  std::vector<Vec> curve;
  for (std::ptrdiff_t span = 0; span < (closed ? count : count - 1); ++span) {
    for (int step = 0; step < steps; ++step) {
      curve.push_back(between(at(span - 1), at(span), at(span + 1), at(span + 2), static_cast<double>(step) / steps));
    }
  }
  if (!closed) curve.push_back(points.back());
  return curve;
}

std::vector<double> radiiAlong(const std::vector<double>& given, std::size_t count) {
  std::vector<double> radii;
  for (std::size_t i = 0; i < count; ++i) {
    const double at = count < 2 ? 0 : static_cast<double>(i * (given.size() - 1)) / static_cast<double>(count - 1);
    const auto low = std::min(static_cast<std::size_t>(at), given.size() - 1);
    const auto high = std::min(low + 1, given.size() - 1);
    radii.push_back(given[low] + (given[high] - given[low]) * (at - std::floor(at)));
  }
  return radii;
}

double doubleArea(const std::vector<Vec>& outline) {
  double sum = 0;
  for (std::size_t i = 0; i < outline.size(); ++i) sum += cross(outline[i], outline[(i + 1) % outline.size()]).z;
  return sum;
}

std::vector<std::array<std::uint32_t, 3>> triangulate(const std::vector<Vec>& outline) {
  std::vector<std::uint32_t> rest(outline.size());
  std::iota(rest.begin(), rest.end(), 0U);
  if (doubleArea(outline) < 0) throw std::invalid_argument("the outline must run counter-clockwise");
  std::vector<std::array<std::uint32_t, 3>> triangles;
  while (rest.size() > 2) {
    std::size_t ear = 0;
    while (ear < rest.size() && !isEar(outline, rest, ear)) ++ear;
    if (ear == rest.size()) throw std::invalid_argument("the outline crosses itself");
    const std::size_t count = rest.size();
    triangles.push_back({rest[(ear + count - 1) % count], rest[ear], rest[(ear + 1) % count]});
    rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(ear));
  }
  return triangles;
}

}  // namespace nerida::library

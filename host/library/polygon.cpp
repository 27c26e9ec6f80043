#include "host/library/polygon.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace nerida::library {
namespace {

struct Flat {
  double x = 0, y = 0;
};

/// Twice the area, negative when the three run clockwise.
double areaOf(const Flat& a, const Flat& b, const Flat& c) {
  return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

/// The direction from which the outline runs counter-clockwise: the mean over all corners, so that none of them decides
/// alone.
Vec normalOf(const std::vector<Vec>& outline) {
  Vec sum;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    sum = sum + cross(outline[i] - outline[0], outline[(i + 1) % outline.size()] - outline[0]);
  }
  return sum;
}

/// The outline seen along its largest axis, counter-clockwise.
std::vector<Flat> flattened(const std::vector<Vec>& outline) {
  const Vec normal = normalOf(outline);
  const double x = std::abs(normal.x), y = std::abs(normal.y), z = std::abs(normal.z);
  std::vector<Flat> flat;
  for (const Vec& p : outline) {
    if (z >= x && z >= y) {
      flat.push_back({normal.z < 0 ? -p.x : p.x, p.y});
    } else if (x >= y) {
      flat.push_back({normal.x < 0 ? -p.y : p.y, p.z});
    } else {
      flat.push_back({normal.y < 0 ? -p.z : p.z, p.x});
    }
  }
  return flat;
}

/// Cuts off one ear after another: a corner whose triangle holds no other corner.
class EarCutter {
 public:
  explicit EarCutter(const std::vector<Vec>& outline) : points(flattened(outline)), rest(outline.size()) {
    std::iota(rest.begin(), rest.end(), 0U);
  }

  std::vector<std::array<std::uint32_t, 3>> cut() {
    std::size_t at = 0, tried = 0;
    while (rest.size() > 3) {
      const bool stuck = tried > rest.size();  // it crosses itself: any corner will do
      if (stuck || isEar(at)) {
        triangles.push_back(around(at));
        rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(at));
        tried = 0;
      } else {
        ++tried;
        ++at;
      }
      if (at >= rest.size()) at = 0;
    }
    if (rest.size() == 3) triangles.push_back({rest[0], rest[1], rest[2]});
    return std::move(triangles);
  }

 private:
  [[nodiscard]] std::array<std::uint32_t, 3> around(std::size_t at) const {
    return {rest[(at + rest.size() - 1) % rest.size()], rest[at], rest[(at + 1) % rest.size()]};
  }

  [[nodiscard]] bool isEar(std::size_t at) const {
    const auto [before, corner, after] = around(at);
    const Flat &a = points[before], &b = points[corner], &c = points[after];
    if (areaOf(a, b, c) <= 0) return false;
    return std::ranges::none_of(rest, [&, before = before, corner = corner, after = after](std::uint32_t other) {
      if (other == before || other == corner || other == after) return false;
      const Flat& p = points[other];
      const bool coincides = (p.x == a.x && p.y == a.y) || (p.x == b.x && p.y == b.y) || (p.x == c.x && p.y == c.y);
      return !coincides && areaOf(a, b, p) >= 0 && areaOf(b, c, p) >= 0 && areaOf(c, a, p) >= 0;
    });
  }

  std::vector<Flat> points;
  std::vector<std::uint32_t> rest;
  std::vector<std::array<std::uint32_t, 3>> triangles;
};

}  // namespace

std::vector<std::array<std::uint32_t, 3>> trianglesOfPolygon(const std::vector<Vec>& outline) {
  if (outline.size() < 3) return {};
  return EarCutter(outline).cut();
}

}  // namespace nerida::library

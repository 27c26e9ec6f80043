#include "host/library/shapes.h"

#include <algorithm>
#include <cmath>

namespace nerida::library {
namespace {

constexpr int rimSteps = 2;

/// A narrow edge of a box needs no more than a chamfer, whose smooth shading looks round.
int edgeSteps(double round) { return round < 0.06 ? 1 : round < 0.2 ? 2 : 3; }

/// Coordinates along one edge of a box: close together at the rounded ends, nothing in between.
std::vector<double> boxMarks(double half, double round) {
  if (round <= 0) return {-half, half};
  const int rimSteps = edgeSteps(round);
  std::vector<double> marks;
  for (int i = 0; i <= rimSteps; ++i) marks.push_back(-half + round * (1 - std::cos(pi / 2 * i / rimSteps)));
  for (int i = rimSteps; i >= 0; --i) marks.push_back(half - round * (1 - std::cos(pi / 2 * i / rimSteps)));
  return marks;
}

Vec rounded(const Vec& point, const Vec& half, double round) {
  if (round <= 0) return point;
  const auto inner = [&](double value, double limit) { return std::clamp(value, -limit + round, limit - round); };
  const Vec core{inner(point.x, half.x), inner(point.y, half.y), inner(point.z, half.z)};
  return core + normalized(point - core) * round;
}

/// One face of the box: `u` and `v` span it so that u x v points outwards.
void addBoxFace(Mesh& mesh, const Vec& half, double round, const Vec& u, const Vec& v) {
  const Vec out = cross(u, v);
  const auto along = [&](const Vec& axis) { return std::abs(dot(axis, half)); };
  const std::vector<double> us = boxMarks(along(u), round), vs = boxMarks(along(v), round);
  const auto base = static_cast<std::uint32_t>(mesh.points.size());
  for (const double b : vs) {
    for (const double a : us) mesh.add(rounded(out * along(out) + u * a + v * b, half, round));
  }
  const auto width = static_cast<std::uint32_t>(us.size());
  for (std::uint32_t row = 0; row + 1 < vs.size(); ++row) {
    for (std::uint32_t column = 0; column + 1 < width; ++column) {
      const std::uint32_t corner = base + row * width + column;
      mesh.addQuad(corner, corner + 1, corner + width + 1, corner + width);
    }
  }
}

void addArc(std::vector<Vec>& profile, const Vec& centre, double radius, double from, double to, int steps) {
  for (int i = 0; i <= steps; ++i) {
    const double angle = (from + (to - from) * i / steps) * pi / 180;
    profile.push_back(centre + Vec{std::cos(angle), std::sin(angle), 0} * radius);
  }
}

}  // namespace

Mesh makeBox(const Vec& size, double round) {
  const Vec half = size * 0.5;
  const double limited = std::min({round, half.x, half.y, half.z});
  Mesh mesh;
  const Vec x{1, 0, 0}, y{0, 1, 0}, z{0, 0, 1};
  addBoxFace(mesh, half, limited, x, y);
  addBoxFace(mesh, half, limited, y, x);
  addBoxFace(mesh, half, limited, y, z);
  addBoxFace(mesh, half, limited, z, y);
  addBoxFace(mesh, half, limited, z, x);
  addBoxFace(mesh, half, limited, x, z);
  mesh.map(Transform::shift({0, half.y, 0}));
  return mesh;
}

Mesh makeSphere(double radius, int segments) {
  std::vector<Vec> profile;
  addArc(profile, {}, radius, -90, 90, segments / 2);
  profile.front().x = profile.back().x = 0;
  return makeLathe(profile, false, segments);
}

Mesh makeCylinder(double radius, double topRadius, double height, double round, int segments) {
  std::vector<Vec> profile{{0, 0, 0}};
  const auto rim = [&](double rimRadius, double y, double from, double to) {
    const double r = std::min({round, rimRadius, height / 2});
    if (r <= 0) {
      profile.push_back({rimRadius, y, 0});
    } else {
      addArc(profile, {rimRadius - r, y > 0 ? y - r : r, 0}, r, from, to, rimSteps);
    }
  };
  rim(radius, 0, -90, 0);
  if (topRadius > 0) rim(topRadius, height, 0, 90);
  profile.push_back({0, height, 0});
  return makeLathe(profile, false, segments);
}

Mesh makeTorus(double radius, double tube, int segments, int sides) {
  std::vector<Vec> profile;
  addArc(profile, {radius, 0, 0}, tube, 0, 360, sides);
  profile.pop_back();
  return makeLathe(profile, true, segments);
}

Mesh makeLathe(const std::vector<Vec>& profile, bool closedProfile, int segments) {
  Mesh mesh;
  const auto levels = static_cast<std::uint32_t>(profile.size());
  const auto slices = static_cast<std::uint32_t>(segments);
  for (std::uint32_t slice = 0; slice < slices; ++slice) {
    const double angle = 2 * pi * slice / segments;
    for (const Vec& p : profile) mesh.add({p.x * std::cos(angle), p.y, p.x * std::sin(angle)});
  }
  for (std::uint32_t slice = 0; slice < slices; ++slice) {
    const std::uint32_t here = slice * levels, next = (slice + 1) % slices * levels;
    for (std::uint32_t level = 0; level < (closedProfile ? levels : levels - 1); ++level) {
      const std::uint32_t above = (level + 1) % levels;
      mesh.addQuad(here + level, here + above, next + above, next + level);
    }
  }
  return mesh;
}

}  // namespace nerida::library

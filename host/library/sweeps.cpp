#include <algorithm>
#include <cmath>

#include "host/library/curves.h"
#include "host/library/shapes.h"

namespace nerida::library {
namespace {

constexpr int rimSteps = 2;

/// An inset that is wider than a corner's curve turns some edges around: those are drawn together into one point.
void untangle(std::vector<Vec>& moved, const std::vector<Vec>& outline) {
  const std::size_t count = outline.size();
  bool turned = true;
  for (std::size_t pass = 0; turned && pass < count; ++pass) {
    turned = false;
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t next = (i + 1) % count;
      if (dot(moved[next] - moved[i], outline[next] - outline[i]) >= 0) continue;
      moved[i] = moved[next] = (moved[i] + moved[next]) * 0.5;
      turned = true;
    }
  }
}

/// The outline moved inwards by `distance`, each corner along its bisector.
std::vector<Vec> inset(const std::vector<Vec>& outline, double distance) {
  std::vector<Vec> result;
  const std::size_t count = outline.size();
  for (std::size_t i = 0; i < count; ++i) {
    const Vec in = normalized(outline[i] - outline[(i + count - 1) % count]);
    const Vec out = normalized(outline[(i + 1) % count] - outline[i]);
    const Vec inLeft{-in.y, in.x, 0}, outLeft{-out.y, out.x, 0};
    const Vec bisector = normalized(inLeft + outLeft);
    // Very sharp corners would run away along the bisector.
    const double stretch = std::max(dot(bisector, inLeft), 0.4);
    result.push_back(outline[i] + bisector * (distance / stretch));
  }
  untangle(result, outline);
  return result;
}

void joinRings(Mesh& mesh, std::uint32_t lower, std::uint32_t upper, std::uint32_t count) {
  for (std::uint32_t i = 0; i < count; ++i) {
    const std::uint32_t next = (i + 1) % count;
    mesh.addQuad(lower + i, lower + next, upper + next, upper + i);
  }
}

std::uint32_t addRing(Mesh& mesh, const std::vector<Vec>& outline, double z) {
  const auto first = static_cast<std::uint32_t>(mesh.points.size());
  for (const Vec& p : outline) mesh.add({p.x, p.y, z});
  return first;
}

/// The end rings belong to `outline` point by point, so that its triangles serve for both of them.
void addCaps(Mesh& mesh, const std::vector<Vec>& outline, std::uint32_t back, std::uint32_t front) {
  for (const auto& [a, b, c] : triangulate(outline)) {
    mesh.addTriangle(front + a, front + b, front + c);
    mesh.addTriangle(back + a, back + c, back + b);
  }
}

struct Frame {
  Vec direction, side;
};

Vec directionAt(const std::vector<Vec>& path, std::size_t i, bool closed) {
  const std::size_t count = path.size();
  const std::size_t before = i > 0 ? i - 1 : (closed ? count - 1 : 0);
  const std::size_t after = i + 1 < count ? i + 1 : (closed ? 0 : i);
  return normalized(path[after] - path[before]);
}

/// Frames that follow the path without twisting about it.
std::vector<Frame> framesAlong(const std::vector<Vec>& path, bool closed) {
  std::vector<Frame> frames;
  const Vec start = directionAt(path, 0, closed);
  Vec side = normalized(cross(start, std::abs(start.y) < 0.9 ? Vec{0, 1, 0} : Vec{1, 0, 0}));
  for (std::size_t i = 0; i < path.size(); ++i) {
    const Vec direction = directionAt(path, i, closed);
    side = normalized(side - direction * dot(side, direction));
    frames.push_back({direction, side});
  }
  return frames;
}

std::uint32_t addCircle(Mesh& mesh, const Vec& centre, const Frame& frame, double radius, int sides) {
  const auto first = static_cast<std::uint32_t>(mesh.points.size());
  const Vec up = cross(frame.direction, frame.side);
  for (int i = 0; i < sides; ++i) {
    const double angle = 2 * pi * i / sides;
    mesh.add(centre + (frame.side * std::cos(angle) + up * std::sin(angle)) * radius);
  }
  return first;
}

/// The rings that round off an end; `sign` is -1 at the start of the path and 1 at its end.
void addEnd(std::vector<std::uint32_t>& rings, Mesh& mesh, const Vec& centre, const Frame& frame, double radius,
            int sides, int sign) {
  for (int step = 1; step <= rimSteps; ++step) {
    const double angle = pi / 2 * (sign > 0 ? step : rimSteps + 1 - step) / rimSteps;
    const Vec shifted = centre + frame.direction * (radius * std::sin(angle) * sign);
    rings.push_back(addCircle(mesh, shifted, frame, radius * std::max(std::cos(angle), 0.0), sides));
  }
}

}  // namespace

Mesh makeExtrusion(std::vector<Vec> outline, double depth, double bevel) {
  if (doubleArea(outline) < 0) std::ranges::reverse(outline);
  const double round = std::min(bevel, depth / 2);
  Mesh mesh;
  std::vector<std::uint32_t> rings;
  const int steps = round > 0 ? rimSteps : 0;
  for (int side = -1; side <= 1; side += 2) {
    for (int step = 0; step <= steps; ++step) {
      const double angle = steps == 0 ? 0 : pi / 2 * (side < 0 ? steps - step : step) / steps;
      const std::vector<Vec> ring = inset(outline, round * (1 - std::cos(angle)));
      rings.push_back(addRing(mesh, ring, side * (depth / 2 - round * (1 - std::sin(angle)))));
    }
  }
  for (std::size_t i = 0; i + 1 < rings.size(); ++i) {
    joinRings(mesh, rings[i], rings[i + 1], static_cast<std::uint32_t>(outline.size()));
  }
  addCaps(mesh, outline, rings.front(), rings.back());
  return mesh;
}

Mesh makeTube(const std::vector<Vec>& path, const std::vector<double>& radii, bool closed, int sides) {
  Mesh mesh;
  const std::vector<Frame> frames = framesAlong(path, closed);
  std::vector<std::uint32_t> rings;
  if (!closed) addEnd(rings, mesh, path.front(), frames.front(), radii.front(), sides, -1);
  for (std::size_t i = 0; i < path.size(); ++i) rings.push_back(addCircle(mesh, path[i], frames[i], radii[i], sides));
  if (closed) rings.push_back(rings.front());
  if (!closed) addEnd(rings, mesh, path.back(), frames.back(), radii.back(), sides, 1);
  for (std::size_t i = 0; i + 1 < rings.size(); ++i) {
    joinRings(mesh, rings[i], rings[i + 1], static_cast<std::uint32_t>(sides));
  }
  return mesh;
}

}  // namespace nerida::library

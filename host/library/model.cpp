#include "host/library/model.h"

#include <algorithm>
#include <limits>

namespace nerida::library {

std::size_t triangleCount(const Node& node) {
  std::size_t count = 0;
  for (const auto& [paint, surface] : node.surfaces) count += surface.indices.size() / 3;
  for (const Node& child : node.children) count += triangleCount(child);
  return count;
}

void collectPoints(const Node& node, const Transform& above, std::size_t frame, std::vector<Vec>& points) {
  Transform here = above * node.placement;
  if (!node.motion.places.empty()) {
    here = here * Transform::shift(node.motion.places[frame]) * Transform::turn(node.motion.turns[frame]);
  }
  for (const auto& [paint, surface] : node.surfaces) {
    for (const Vec& point : surface.points) points.push_back(here.apply(point));
  }
  for (const Node& child : node.children) collectPoints(child, here, frame, points);
}

void fitIntoUnitSphere(BuiltModel& model) {
  std::vector<Vec> points;
  for (int frame = 0; frame < std::max(model.frames, 1); ++frame) {
    collectPoints(model.root, {}, static_cast<std::size_t>(frame), points);
  }
  constexpr double far = std::numeric_limits<double>::max();
  Vec low{far, far, far}, high{-far, -far, -far};
  for (const Vec& p : points) {
    low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z)};
    high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z)};
  }
  const Vec middle = (low + high) * 0.5;
  double radius = 0;
  for (const Vec& p : points) radius = std::max(radius, length(p - middle));
  const double scale = 1 / radius;
  const Transform fit = Transform::scale({scale, scale, scale}) * Transform::shift(middle * -1);
  for (auto& [paint, surface] : model.root.surfaces) {
    for (Vec& point : surface.points) point = fit.apply(point);
  }
  for (Node& child : model.root.children) child.placement = fit * child.placement;
}

}  // namespace nerida::library

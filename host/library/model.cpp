#include "host/library/model.h"

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

}  // namespace nerida::library

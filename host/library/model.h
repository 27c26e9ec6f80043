#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/library/geometry.h"
#include "host/search/model_card.h"

namespace nerida::library {

struct Paint {
  std::string name;
  double red = 0.6, green = 0.6, blue = 0.6;  ///< linear light
  bool doubleSided = false;
  std::string image;      ///< the bytes of a picture that is laid over the surface; empty = none
  std::string imageType;  ///< "image/png" or "image/jpeg"
};

/// How a node moves: one entry for each frame, both lists empty for a node that rests.
struct Motion {
  std::vector<Vec> places;
  std::vector<Quaternion> turns;
};

struct Node {
  std::string name;
  Transform placement;  ///< of the resting frame in which the motion takes place
  Motion motion;
  std::map<std::size_t, Surface> surfaces;  ///< by paint
  std::vector<Node> children;
};

using search::ModelCard;

struct BuiltModel {
  ModelCard card;
  double framesPerSecond = 24;
  int frames = 0;  ///< 0 = not animated
  std::vector<Paint> paints;
  Node root;
};

[[nodiscard]] std::size_t triangleCount(const Node& node);

/// Puts the middle of the model, over all its frames, into the origin and its farthest point at distance 1.
void fitIntoUnitSphere(BuiltModel& model);

/// The corners of everything below `node`, in the pose of `frame`.
void collectPoints(const Node& node, const Transform& above, std::size_t frame, std::vector<Vec>& points);

}  // namespace nerida::library

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "host/render/mesh.h"

namespace nerida {

struct Quaternion {
  float x = 0, y = 0, z = 0, w = 1;
};

/// Where a node stands within its parent: one matrix, or three parts that key frames can move.
struct Node {
  int parent = -1;
  std::optional<Affine> matrix;
  Vec3 translation;
  Quaternion rotation;
  Vec3 scale{1, 1, 1};
};

struct Skin {
  std::vector<int> joints;  ///< nodes
  std::vector<Affine> inverseBinds;
};

/// The joints that pull at a vertex, numbered within its part's skin.
struct Pull {
  std::array<std::uint16_t, 4> joints{};
  std::array<float, 4> weights{};
};

/// A run of vertices that one node carries.
struct Part {
  std::size_t first = 0, count = 0;
  std::size_t firstTriangle = 0, triangleCount = 0;
  int node = 0;
  int skin = -1;
  std::size_t firstPull = 0;
  bool mirrored = false;  ///< pose() found that its node turns it inside out
};

enum class Interpolation { step, linear, cubic };
enum class Movement { translation, rotation, scale };

/// The key frames of one part of one node.
struct Track {
  int node = 0;
  Movement movement = Movement::translation;
  Interpolation interpolation = Interpolation::linear;
  std::vector<float> times;        ///< seconds, ascending
  std::vector<Quaternion> values;  ///< cubic: tangent in, value, tangent out for each time; vectors leave w alone
};

/// All of a model file that is needed to draw it.
struct ModelContent {
  Mesh mesh;                             ///< in the pose last asked for
  std::vector<Vec3> positions, normals;  ///< at rest, each part in its node's axes
  std::vector<Pull> pulls;
  std::vector<Part> parts;
  std::vector<Node> nodes;  ///< parents before children
  std::vector<Skin> skins;
  std::vector<Track> tracks;
  double frameRate = 24;
  int frameCount = 0;
};

/// Moves the vertices of content.mesh to where they are after `seconds`, seen from `root`.
void pose(ModelContent& content, double seconds, const Affine& root);

}  // namespace nerida

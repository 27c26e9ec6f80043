#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "host/render/vec.h"

namespace nerida {

/// Linear light, 0 to 1, top row first; width and height are at least 1. It repeats in both directions.
struct Texture {
  int width = 0;
  int height = 0;
  std::vector<Vec3> texels;
};

struct Material {
  Vec3 color{0.6F, 0.6F, 0.6F};  ///< linear light
  bool doubleSided = false;
  std::shared_ptr<const Texture> texture;
};

struct Triangle {
  std::uint32_t corners[3];
  std::uint32_t material = 0;
};

/// Where two triangles meet, or where one ends.
struct Edge {
  static constexpr std::uint32_t none = 0xFFFFFFFFU;

  std::uint32_t from = 0, to = 0;
  std::uint32_t firstFace = none, secondFace = none;
  bool crease = false;  ///< a hard edge of the shape
  bool flat = false;    ///< both faces lie in one plane: an accident of cutting into triangles
};

/// What the renderer draws: Y up, Z towards the viewer, counter-clockwise triangles face outwards.
/// The model is expected to lie within the unit sphere.
struct Mesh {
  std::vector<Vec3> positions;
  std::vector<Vec3> normals;
  std::vector<Vec2> textureCoordinates;  ///< empty, or one for each position
  std::vector<Vec3> colors;              ///< empty, or one for each position; they filter the material's colour
  std::vector<Triangle> triangles;
  std::vector<Material> materials;
  std::vector<Edge> edges;
};

/// Finds the edges of `mesh` once, for all its poses: vertices at the same place count as one.
void findEdges(Mesh& mesh);

}  // namespace nerida

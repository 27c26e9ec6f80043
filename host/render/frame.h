#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "host/render/mesh.h"
#include "host/render/renderer.h"

namespace nerida {

/// Four floats or integers, one for each sample of a pixel; the compiler computes with all four at once.
using Float4 = float __attribute__((vector_size(16)));
using Int4 = std::int32_t __attribute__((vector_size(16)));

/// A vertex in the picture. The nearer, the greater the depth; depth is linear over a projected triangle.
struct ScreenVertex {
  float x = 0, y = 0, depth = 0;
  Vec3 place, normal;  ///< in the viewer's axes: x right, y up, z to the viewer
};

/// The pixels from left and top up to, and without, right and bottom.
struct PixelBox {
  int left = 0, top = 0, right = 0, bottom = 0;
  [[nodiscard]] bool empty() const { return left >= right || top >= bottom; }
};

/// What one drawing works on; kept from drawing to drawing for its memory.
struct Frame {
  static constexpr std::int32_t nothing = -1;

  int width = 0, height = 0;
  float unit = 1;  ///< pixels that a line of width 1 takes
  PixelBox box;    ///< where the model can be
  std::vector<ScreenVertex> vertices;
  std::vector<float> areas;     ///< of each triangle, doubled; positive = it faces the viewer
  std::vector<Float4> depths;   ///< of each pixel's samples; 0 = nothing there
  std::vector<Int4> faces;      ///< the triangle in each sample
  std::vector<float> farthest;  ///< the farthest depth within each pixel
  std::vector<float> ink;       ///< how far lines cover each pixel

  [[nodiscard]] std::size_t at(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
  }
};

/// Places the mesh in the picture: fills vertices, areas, box and unit.
void project(const Mesh& mesh, const View& view, Frame& frame);

/// Finds the nearest triangle of every sample: fills depths and faces within the box.
void rasterize(const Mesh& mesh, Frame& frame);

/// Colours the whole picture, background included, and fills farthest.
void shadeSurfaces(const Mesh& mesh, const Look& look, Frame& frame, Picture& target);

/// Draws the style's lines over it, in that colour.
void drawLines(const Mesh& mesh, const Look& look, Frame& frame, Picture& target);

}  // namespace nerida

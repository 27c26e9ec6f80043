#include "host/render/frame.h"

namespace nerida {
namespace {

// Where a pixel's four samples lie: no two in one row or column, so that steep and flat edges both get four steps.
constexpr Float4 sampleX{0.375F, 0.875F, 0.125F, 0.625F};
constexpr Float4 sampleY{0.125F, 0.375F, 0.625F, 0.875F};

/// Positive on the inner side of the line from one corner to the next.
struct HalfPlane {
  float perX, perY;
  float originX, originY;
  float slack;  // rounding must not open gaps between neighbours

  HalfPlane(const ScreenVertex& a, const ScreenVertex& b, float sign)
      : perX((b.y - a.y) * sign),
        perY((a.x - b.x) * sign),
        originX(a.x),
        originY(a.y),
        slack(0.002F * (std::fabs(perX) + std::fabs(perY))) {}

  [[nodiscard]] Float4 samplesAt(float x, float y) const {
    return perX * (sampleX + (x - originX)) + (perY * (sampleY + (y - originY)) + slack);
  }

  /// Cuts [left, right] down to the pixels of the row at y that the inner side can touch.
  void cut(float y, float& left, float& right) const {
    const float best = perY * (y - originY) + std::max(perY, 0.0F) + std::max(perX, 0.0F) - perX * originX + slack;
    if (perX > 0) {
      left = std::max(left, -best / perX);
    } else if (perX < 0) {
      right = std::min(right, -best / perX);
    } else if (best < 0) {
      right = left - 1;
    }
  }
};

struct DepthPlane {
  float origin, perX, perY, originX, originY;

  DepthPlane(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c, float area)
      : origin(a.depth), originX(a.x), originY(a.y) {
    const float db = b.depth - a.depth, dc = c.depth - a.depth;
    perX = (dc * (b.y - a.y) - db * (c.y - a.y)) / area;
    perY = (db * (c.x - a.x) - dc * (b.x - a.x)) / area;
  }

  [[nodiscard]] Float4 samplesAt(float x, float y) const {
    return perX * (sampleX + (x - originX)) + (perY * (sampleY + (y - originY)) + origin);
  }
};

class TriangleFiller {
 public:
  TriangleFiller(const ScreenVertex& first, const ScreenVertex& second, const ScreenVertex& third, float area)
      : a(first),
        b(second),
        c(third),
        depth(a, b, c, area),
        sides{{a, b, sign(area)}, {b, c, sign(area)}, {c, a, sign(area)}} {}

  void fill(Frame& frame, std::int32_t face) const {
    const float top = std::min({a.y, b.y, c.y}), bottom = std::max({a.y, b.y, c.y});
    const int firstRow = std::max(frame.box.top, static_cast<int>(std::floor(top)));
    const int lastRow = std::min(frame.box.bottom - 1, static_cast<int>(std::floor(bottom)));
    for (int y = firstRow; y <= lastRow; ++y) fillRow(frame, y, face);
  }

 private:
  static float sign(float area) { return area > 0 ? 1.0F : -1.0F; }

  void fillRow(Frame& frame, int row, std::int32_t face) const {
    const auto y = static_cast<float>(row);
    float left = std::max(std::floor(std::min({a.x, b.x, c.x})), static_cast<float>(frame.box.left));
    float right = std::min(std::max({a.x, b.x, c.x}), static_cast<float>(frame.box.right - 1));
    for (const HalfPlane& side : sides) side.cut(y, left, right);
    if (left > right) return;
    const int first = static_cast<int>(std::ceil(left - 0.01F)), last = static_cast<int>(std::floor(right));
    if (first <= last) fillSpan(frame, first, last, row, face);
  }

  void fillSpan(Frame& frame, int first, int last, int row, std::int32_t face) const {
    const auto x = static_cast<float>(first), y = static_cast<float>(row);
    Float4 e0 = sides[0].samplesAt(x, y), e1 = sides[1].samplesAt(x, y), e2 = sides[2].samplesAt(x, y);
    Float4 z = depth.samplesAt(x, y);
    Float4* depths = frame.depths.data() + frame.at(first, row);
    Int4* faces = frame.faces.data() + frame.at(first, row);
    const Int4 mark{face, face, face, face};
    for (int i = first; i <= last; ++i, ++depths, ++faces) {
      const Int4 wins = (e0 >= 0.0F) & (e1 >= 0.0F) & (e2 >= 0.0F) & (z > *depths);
      *depths = wins ? z : *depths;
      *faces = wins ? mark : *faces;
      e0 += sides[0].perX;
      e1 += sides[1].perX;
      e2 += sides[2].perX;
      z += depth.perX;
    }
  }

  const ScreenVertex &a, &b, &c;
  DepthPlane depth;
  HalfPlane sides[3];
};

void clear(Frame& frame) {
  const std::size_t pixels = frame.at(0, frame.height);
  frame.depths.resize(pixels);
  frame.faces.resize(pixels);
  constexpr Int4 none{Frame::nothing, Frame::nothing, Frame::nothing, Frame::nothing};
  for (int y = frame.box.top; y < frame.box.bottom; ++y) {
    const std::size_t from = frame.at(frame.box.left, y), to = frame.at(frame.box.right, y);
    std::fill(frame.depths.data() + from, frame.depths.data() + to, Float4{});
    std::fill(frame.faces.data() + from, frame.faces.data() + to, none);
  }
}

}  // namespace

void rasterize(const Mesh& mesh, Frame& frame) {
  if (frame.box.empty()) return;
  constexpr float tooSmall = 1e-6F;
  clear(frame);
  for (std::size_t i = 0; i < mesh.triangles.size(); ++i) {
    const Triangle& triangle = mesh.triangles[i];
    const float area = frame.areas[i];
    if (!(std::fabs(area) > tooSmall)) continue;
    if (area < 0 && !mesh.materials[triangle.material].doubleSided) continue;
    const TriangleFiller filler(frame.vertices[triangle.corners[0]], frame.vertices[triangle.corners[1]],
                                frame.vertices[triangle.corners[2]], area);
    filler.fill(frame, static_cast<std::int32_t>(i));
  }
}

}  // namespace nerida

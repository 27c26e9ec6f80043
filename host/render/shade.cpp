#include "host/render/frame.h"
#include "host/render/graphic_shaders.h"
#include "host/render/hand_shaders.h"

namespace nerida {
namespace {

struct Weights {
  float a, b, c;
};

/// Where the middle of a pixel lies within a triangle, as shares of its three corners.
Weights weightsAt(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c, float x, float y) {
  // The pixel's middle may lie outside although a sample lies inside.
  const float first = std::max(0.0F, ((c.y - b.y) * (x - b.x) - (c.x - b.x) * (y - b.y)) * a.depth);
  const float second = std::max(0.0F, ((a.y - c.y) * (x - c.x) - (a.x - c.x) * (y - c.y)) * b.depth);
  const float third = std::max(0.0F, ((b.y - a.y) * (x - a.x) - (b.x - a.x) * (y - a.y)) * c.depth);
  const float sum = first + second + third;
  if (!(sum > 0)) return {1, 0, 0};
  const float scale = 1 / sum;
  return {first * scale, second * scale, third * scale};
}

Vec3 blend(Vec3 a, Vec3 b, Vec3 c, Weights w) { return a * w.a + b * w.b + c * w.c; }

Vec3 texelAt(const Texture& texture, int column, int line) {
  const auto wrap = [](int i, int size) { return static_cast<std::size_t>((i % size + size) % size); };
  return texture
      .texels[wrap(line, texture.height) * static_cast<std::size_t>(texture.width) + wrap(column, texture.width)];
}

Vec3 textureColor(const Texture& texture, Vec2 at) {
  constexpr float limit = 4096;  // repeats beyond which the grid would be lost in rounding anyway
  const float x = std::clamp(at.x, -limit, limit) * static_cast<float>(texture.width) - 0.5F;
  const float y = std::clamp(at.y, -limit, limit) * static_cast<float>(texture.height) - 0.5F;
  const float left = std::floor(x), top = std::floor(y);
  const auto column = static_cast<int>(left), line = static_cast<int>(top);
  const Vec3 upper = mix(texelAt(texture, column, line), texelAt(texture, column + 1, line), x - left);
  const Vec3 lower = mix(texelAt(texture, column, line + 1), texelAt(texture, column + 1, line + 1), x - left);
  return mix(upper, lower, y - top);
}

template <class Shader>
class SurfacePainter {
 public:
  SurfacePainter(const Mesh& drawnMesh, Frame& drawnFrame, const Shader& chosenShader,
                 std::optional<PackedRgb> oneColor)
      : mesh(drawnMesh), frame(drawnFrame), shader(chosenShader) {
    if (oneColor) color = linearFromRgb(*oneColor);
  }

  void paint(Picture& target) {
    const PixelBox& box = frame.box;
    frame.farthest.resize(frame.at(0, frame.height));
    for (int y = 0; y < frame.height; ++y) {
      std::uint32_t* row = target.row(y);
      const bool touched = !box.empty() && y >= box.top && y < box.bottom;
      const int left = touched ? box.left : frame.width, right = touched ? box.right : frame.width;
      paintGround(row, y, 0, left);
      for (int x = left; x < right; ++x) row[x] = pixel(x, y);
      paintGround(row, y, right, frame.width);
    }
  }

 private:
  void paintGround(std::uint32_t* row, int y, int left, int right) {
    for (int x = left; x < right; ++x) row[x] = shader.background(x, y);
    std::fill(frame.farthest.data() + frame.at(left, y), frame.farthest.data() + frame.at(right, y), 0.0F);
  }

  std::uint32_t pixel(int x, int y) {
    const std::size_t at = frame.at(x, y);
    const Int4 faces = frame.faces[at];
    const Float4 depths = frame.depths[at];
    frame.farthest[at] = std::min(std::min(depths[0], depths[1]), std::min(depths[2], depths[3]));
    const std::uint32_t first = sample(faces[0], x, y);
    if (faces[1] == faces[0] && faces[2] == faces[0] && faces[3] == faces[0]) return first;
    const std::uint32_t second = faces[1] == faces[0] ? first : sample(faces[1], x, y);
    const std::uint32_t third = faces[2] == faces[0] ? first : faces[2] == faces[1] ? second : sample(faces[2], x, y);
    const std::uint32_t fourth = faces[3] == faces[2]   ? third
                                 : faces[3] == faces[1] ? second
                                 : faces[3] == faces[0] ? first
                                                        : sample(faces[3], x, y);
    return average(first, second, third, fourth);
  }

  static std::uint32_t average(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
    const auto both = [&](std::uint32_t mask, std::uint32_t half) {
      return ((a & mask) + (b & mask) + (c & mask) + (d & mask) + half) >> 2U & mask;
    };
    return 0xFF000000U | both(0xFF00FFU, 0x20002U) | both(0xFF00U, 0x200U);
  }

  std::uint32_t sample(std::int32_t face, int x, int y) {
    if (face == Frame::nothing) return shader.background(x, y);
    return encode(
        shader(pointOf(static_cast<std::size_t>(face), static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F)));
  }

  SurfacePoint pointOf(std::size_t face, float x, float y) const {
    const Triangle& triangle = mesh.triangles[face];
    const ScreenVertex& a = frame.vertices[triangle.corners[0]];
    const ScreenVertex& b = frame.vertices[triangle.corners[1]];
    const ScreenVertex& c = frame.vertices[triangle.corners[2]];
    const bool turned = frame.areas[face] < 0;  // seen from behind: the double's normals point the other way
    const Weights w = turned ? mirrored(weightsAt(c, b, a, x, y)) : weightsAt(a, b, c, x, y);
    const Vec3 normal = normalized(blend(a.normal, b.normal, c.normal, w));
    SurfacePoint point;
    point.normal = turned ? -normal : normal;
    point.color = colorOf(triangle, w);
    point.faceNormal = point.normal;
    if constexpr (std::is_same_v<Shader, FacetShader>) point.faceNormal = faceNormal(a, b, c, turned);
    point.x = x;
    point.y = y;
    return point;
  }

  static Weights mirrored(Weights w) { return {w.c, w.b, w.a}; }

  static Vec3 faceNormal(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c, bool turned) {
    const Vec3 normal = normalized(cross(b.place - a.place, c.place - a.place));
    return turned ? -normal : normal;
  }

  Vec3 colorOf(const Triangle& triangle, Weights w) const {
    if (color) return *color;
    const Material& material = mesh.materials[triangle.material];
    const auto& corners = triangle.corners;
    Vec3 result = material.color;
    if (!mesh.colors.empty()) {
      result = result * blend(mesh.colors[corners[0]], mesh.colors[corners[1]], mesh.colors[corners[2]], w);
    }
    if (material.texture && !mesh.textureCoordinates.empty()) {
      const Vec2 a = mesh.textureCoordinates[corners[0]], b = mesh.textureCoordinates[corners[1]],
                 c = mesh.textureCoordinates[corners[2]];
      result = result *
               textureColor(*material.texture, {a.x * w.a + b.x * w.b + c.x * w.c, a.y * w.a + b.y * w.b + c.y * w.c});
    }
    return result;
  }

  const Mesh& mesh;
  Frame& frame;
  const Shader& shader;
  std::optional<Vec3> color;
  ToneEncoder encode;
};

Lamp lampOf(const Light& light) {
  const Vec3 direction = normalized({light.direction.x, -light.direction.y, light.direction.z});
  return {light.on, direction, normalized(direction + Vec3{0, 0, 1})};
}

struct Colors {
  std::optional<PackedRgb> surface;
  PackedRgb line, background;
};

Colors colorsOf(const Look& look) {
  const LookStyle& style = *look.style;
  Colors colors{look.surface, look.line.value_or(style.line), look.background.value_or(style.background)};
  if (!colors.surface && !style.ownColors) colors.surface = style.surface;
  return colors;
}

}  // namespace

void shadeSurfaces(const Mesh& mesh, const Look& look, Frame& frame, Picture& target) {
  const Colors colors = colorsOf(look);
  const Lamp lamp = lampOf(look.light);
  const PlainGround ground{pixelFromRgb(colors.background)};
  const Vec3 paper = linearFromRgb(colors.background), ink = linearFromRgb(colors.line);
  const auto paint = [&](const auto& shader) { SurfacePainter(mesh, frame, shader, colors.surface).paint(target); };
  const float unit = frame.unit;
  const Vec2 center{static_cast<float>(frame.width) / 2, static_cast<float>(frame.height) / 2};
  const float radius = std::min(center.x, center.y);
  switch (look.style->shading) {
    case Shading::none:
      return paint(NoShader{ground, paper});
    case Shading::flat:
      return paint(FlatShader{ground});
    case Shading::facets:
      return paint(FacetShader{ground, lamp});
    case Shading::smooth:
      return paint(SmoothShader{ground, lamp});
    case Shading::clay:
      return paint(ClayShader{lamp, paper, center, radius});
    case Shading::silhouette:
      return paint(SilhouetteShader{lamp, paper, center, radius});
    case Shading::paper:
      return paint(PaperShader{ground, lamp});
    case Shading::cartoon:
      return paint(CartoonShader{ground, lamp});
    case Shading::halftone:
      return paint(HalftoneShader{lamp, paper, std::max(4.5F, 6.5F * unit), center.y * 2});
    case Shading::blueprint:
      return paint(BlueprintShader{lamp, paper, ink, std::max(8, static_cast<int>(24 * unit))});
    case Shading::pencil:
      return paint(PencilShader{lamp, paper, ink, look.surface ? 0.6F : 0.16F, unit});
    case Shading::chalk:
      return paint(ChalkShader{lamp, paper, unit});
    case Shading::watercolor:
      return paint(WatercolorShader{lamp, paper, unit});
  }
}

}  // namespace nerida

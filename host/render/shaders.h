#pragma once

#include <algorithm>

#include "host/render/tone.h"
#include "host/render/vec.h"

// One small struct for each way of filling a surface: how a point of it looks, and the ground behind the model.
// All of them work in linear light, in the viewer's axes (x right, y up, z to the viewer). Here are those that imitate
// light; those that imitate print and a hand are in graphic_shaders.h and hand_shaders.h.

namespace nerida {

struct SurfacePoint {
  Vec3 normal;      ///< smooth, of length 1
  Vec3 faceNormal;  ///< of the flat triangle, of length 1
  Vec3 color;
  float x = 0, y = 0;  ///< pixel
};

/// What the lamp is to a picture.
struct Lamp {
  bool on = true;
  Vec3 direction;
  Vec3 halfway;  ///< between lamp and viewer: where the highlight sits

  /// 0 = turned away, 1 = full on; the light reaches a little around the bend, as it does from a large window.
  [[nodiscard]] float reach(Vec3 normal) const {
    constexpr float wrap = 0.15F;
    return on ? std::max(0.0F, (dot(normal, direction) + wrap) / (1 + wrap)) : 0.0F;
  }
};

/// The light that comes from everywhere: more from above than from below.
inline float skyLight(Vec3 normal) { return 0.75F + 0.25F * normal.y; }

/// 0 = the surface faces the viewer, 1 = it is seen from the side.
inline float edgeOn(Vec3 normal) { return 1 - std::clamp(normal.z, 0.0F, 1.0F); }

inline float brightnessOf(Vec3 color) { return 0.2126F * color.x + 0.7152F * color.y + 0.0722F * color.z; }

struct PlainGround {
  std::uint32_t color;
  [[nodiscard]] std::uint32_t background(int, int) const { return color; }
};

struct NoShader : PlainGround {
  Vec3 ground;
  [[nodiscard]] Vec3 operator()(const SurfacePoint&) const { return ground; }
};

struct FlatShader : PlainGround {
  [[nodiscard]] Vec3 operator()(const SurfacePoint& p) const { return p.color; }
};

struct FacetShader : PlainGround {
  Lamp lamp;
  [[nodiscard]] Vec3 operator()(const SurfacePoint& p) const {
    return p.color * (0.38F * skyLight(p.faceNormal) + 0.72F * lamp.reach(p.faceNormal));
  }
};

struct SmoothShader : PlainGround {
  Lamp lamp;
  [[nodiscard]] Vec3 operator()(const SurfacePoint& p) const {
    const float side = edgeOn(p.normal);
    const float rim = side * side * side * 0.10F * (0.6F + 0.4F * p.normal.y);
    const float sky = 0.24F * skyLight(p.normal) + 0.12F * std::max(0.0F, p.normal.z);
    const Vec3 coolSky{sky * 0.94F, sky * 0.98F, sky * 1.08F};
    const float sun = 0.80F * lamp.reach(p.normal);
    const Vec3 warmSun{sun * 1.02F, sun, sun * 0.96F};
    const float shine = highlight(p.normal) + rim;
    return p.color * (coolSky + warmSun) + Vec3{shine, shine, shine};
  }

 private:
  [[nodiscard]] float highlight(Vec3 normal) const {
    if (!lamp.on) return 0;
    const float facing = std::max(0.0F, dot(normal, lamp.halfway));
    const float squared = facing * facing, fourth = squared * squared, eighth = fourth * fourth;
    const float broad = eighth * eighth, narrow = broad * broad * broad;
    return 0.05F * broad + 0.28F * narrow;
  }
};

struct ClayShader {
  Lamp lamp;
  Vec3 backdrop;
  Vec2 center;
  float radius = 1;  ///< pixels from the middle to the nearest border
  ToneEncoder encode{};

  /// A studio's paper roll, a little darker around.
  [[nodiscard]] std::uint32_t background(int x, int y) const {
    const float dx = (static_cast<float>(x) - center.x) / radius, dy = (static_cast<float>(y) - center.y) / radius;
    return encode(backdrop * (1.06F - 0.09F * std::min(dx * dx + dy * dy, 3.0F)));
  }

  [[nodiscard]] Vec3 operator()(const SurfacePoint& p) const {
    const float side = edgeOn(p.normal), sun = lamp.reach(p.normal);
    const float sky = (0.06F + 0.16F * std::max(0.0F, p.normal.z)) * skyLight(p.normal);
    const Vec3 warmth =
        Vec3{0.10F, 0.035F, 0.0F} * (sun * (1 - sun) * 4);  // light that went through the rim of the clay
    const float bloom = 0.16F * side * side * sun;
    return p.color * (Vec3{sky, sky, sky * 1.06F} + Vec3{sun, sun * 0.97F, sun * 0.92F} + warmth) +
           Vec3{bloom, bloom, bloom};
  }
};

/// Against the light: the lamp is a sun behind the model.
struct SilhouetteShader {
  Lamp lamp;
  Vec3 sky;
  Vec2 center;
  float radius = 1;  ///< pixels from the middle to the nearest border
  ToneEncoder encode{};

  [[nodiscard]] std::uint32_t background(int x, int y) const {
    if (!lamp.on) return encode(sky * 0.55F);
    constexpr float height = 0.62F, disc = 0.26F;
    const float dx = (static_cast<float>(x) - center.x) / radius - lamp.direction.x * height;
    const float dy = (static_cast<float>(y) - center.y) / radius + lamp.direction.y * height;
    const float away = std::sqrt(dx * dx + dy * dy);
    const float haze = std::max(0.0F, 1 - away), sun = std::clamp((disc - away) * radius + 0.5F, 0.0F, 1.0F);
    return encode(mix(mix(sky, glow, 0.75F * haze * haze), {1, 0.97F, 0.86F}, sun));
  }

  [[nodiscard]] Vec3 operator()(const SurfacePoint& p) const {
    const float side = edgeOn(p.normal);
    return mix(p.color, glow, 0.85F * side * side * side * lamp.reach(p.normal));
  }

 private:
  static constexpr Vec3 glow{1, 0.80F, 0.45F};
};

}  // namespace nerida

#pragma once

#include "host/render/shaders.h"

// Surfaces as they are printed: few tones, dots, grids.

namespace nerida {

struct PaperShader : PlainGround {
  Lamp lamp;
  [[nodiscard]] Vec3 operator()(const SurfacePoint& p) const {
    const float light = lamp.on ? lamp.reach(p.normal) : 0.35F;
    const float shade = std::clamp((0.30F - light) * 4, 0.0F, 1.0F);
    return mix(p.color, p.color * Vec3{0.62F, 0.66F, 0.74F}, shade * 0.75F);
  }
};

struct CartoonShader : PlainGround {
  Lamp lamp;
  [[nodiscard]] Vec3 operator()(const SurfacePoint& p) const {
    const float light = lamp.reach(p.normal);
    const Vec3 dark = p.color * Vec3{0.36F, 0.33F, 0.46F};
    const Vec3 middle = p.color * 0.80F;
    const Vec3 bright = mix(p.color, {1, 1, 1}, 0.10F);
    Vec3 tone = mix(dark, middle, step(light, 0.22F));
    tone = mix(tone, bright, step(light, 0.62F));
    return lamp.on ? mix(tone, {1, 1, 1}, 0.65F * step(dot(p.normal, lamp.halfway), 0.972F)) : tone;
  }

 private:
  /// A step that is a little soft, so that the border between two tones has no teeth.
  static float step(float value, float threshold) { return std::clamp((value - threshold) * 60 + 0.5F, 0.0F, 1.0F); }
};

struct HalftoneShader {
  Lamp lamp;
  Vec3 paper;
  float period = 6;  ///< pixels from dot to dot
  float height = 1;  ///< of the picture
  ToneEncoder encode{};

  /// The dots grow towards the lower border.
  [[nodiscard]] std::uint32_t background(int x, int y) const {
    const auto at = static_cast<float>(y);
    return encode(mix(paper, paper * Vec3{0.86F, 0.58F, 0.42F}, dot(static_cast<float>(x), at, 0.5F * at / height)));
  }

  [[nodiscard]] Vec3 operator()(const SurfacePoint& p) const {
    const float light = lamp.reach(p.normal);
    const float dark = std::clamp(0.82F - 1.25F * light, 0.0F, 0.80F);
    const bool shines = lamp.on && nerida::dot(p.normal, lamp.halfway) > 0.975F;
    const Vec3 bright = shines ? mix(p.color, {1, 1, 1}, 0.6F) : p.color * 1.12F;
    return mix(bright, p.color * Vec3{0.16F, 0.12F, 0.30F}, dark > 0.06F ? dot(p.x, p.y, dark) : 0);
  }

 private:
  /// How far a dot covers the pixel, where dots are to cover that share of the whole.
  [[nodiscard]] float dot(float x, float y, float share) const {
    constexpr float slant = 0.7071F;
    const float u = (x + y) * slant / period, v = (x - y) * slant / period;
    const float du = u - std::floor(u) - 0.5F, dv = v - std::floor(v) - 0.5F;
    const float radius = std::sqrt(share * 0.3183F * 1.25F);
    return std::clamp((radius - std::sqrt(du * du + dv * dv)) * period + 0.5F, 0.0F, 1.0F);
  }
};

struct BlueprintShader {
  Lamp lamp;
  Vec3 paper, ink;
  int cell = 24;  ///< pixels between the grid's lines
  ToneEncoder encode{};

  [[nodiscard]] std::uint32_t background(int x, int y) const {
    const bool strong = x % (cell * 5) == 0 || y % (cell * 5) == 0;
    const bool line = x % cell == 0 || y % cell == 0;
    return encode(mix(paper, ink, strong ? 0.16F : line ? 0.07F : 0.0F));
  }

  [[nodiscard]] Vec3 operator()(const SurfacePoint& p) const {
    const float side = edgeOn(p.normal);
    const float glow = 0.02F + 0.20F * side * side + 0.12F * lamp.reach(p.normal);
    return mix(mix(paper, p.color, 0.55F), ink, glow);
  }
};

}  // namespace nerida

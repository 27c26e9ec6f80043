#pragma once

#include <algorithm>

#include "host/render/noise.h"
#include "host/render/tone.h"
#include "host/render/vec.h"

// One small struct for each way of filling a surface: how a point of it looks, and the ground behind the model.
// All of them work in linear light, in the viewer's axes (x right, y up, z to the viewer).

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

inline float brightnessOf(Vec3 color) { return 0.2126F * color.x + 0.7152F * color.y + 0.0722F * color.z; }

struct PlainGround {
  std::uint32_t color;
  [[nodiscard]] std::uint32_t background(int, int) const { return color; }
};

struct NoShader : PlainGround {
  Vec3 ground;
  [[nodiscard]] Vec3 operator()(const SurfacePoint&) const { return ground; }
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
    const float edgeOn = 1 - std::clamp(p.normal.z, 0.0F, 1.0F);
    const float rim = edgeOn * edgeOn * edgeOn * 0.10F * (0.6F + 0.4F * p.normal.y);
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

struct PencilShader {
  Lamp lamp;
  Vec3 paper, lead;
  float unit = 1;  ///< pixels between hatches grow with the picture
  ToneEncoder encode{};

  [[nodiscard]] std::uint32_t background(int x, int y) const { return encode(paper * (1 - 0.1F * paperGrain(x, y))); }

  [[nodiscard]] Vec3 operator()(const SurfacePoint& p) const {
    const float light =
        (0.30F * skyLight(p.normal) + 0.85F * lamp.reach(p.normal)) * (0.45F + 0.55F * brightnessOf(p.color));
    const float dark = std::clamp(1 - 1.3F * light, 0.0F, 1.0F);
    const float tooth = 0.55F + 0.45F * grain(static_cast<int>(p.x), static_cast<int>(p.y));
    const float shake = dark > 0 ? 2.0F * unit * softGrain(p.x * 0.04F / unit, p.y * 0.04F / unit) : 0;
    float lines = hatch(p.x + p.y + shake, dark * 1.25F - 0.12F);
    lines = std::max(lines, hatch(p.x - p.y * 0.55F - shake, dark * 1.5F - 0.72F));
    lines = std::max(lines, 0.35F * dark * dark);
    return mix(mix(paper, p.color, 0.16F), lead, std::min(lines * tooth, 0.92F));
  }

 private:
  /// Strokes side by side in the direction of `across`: the darker, the broader.
  [[nodiscard]] float hatch(float across, float dark) const {
    if (dark <= 0) return 0;
    const float period = std::max(4.5F, 5.2F * unit);
    const float phase = across / period - std::floor(across / period);
    const float fromMiddle = std::fabs(phase - 0.5F) * 2;
    return std::clamp((std::min(dark, 0.9F) - fromMiddle) * period * 0.35F + 0.3F, 0.0F, 0.85F);
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
    const float edgeOn = 1 - std::clamp(p.normal.z, 0.0F, 1.0F);
    const float glow = 0.02F + 0.20F * edgeOn * edgeOn + 0.12F * lamp.reach(p.normal);
    return mix(mix(paper, p.color, 0.55F), ink, glow);
  }
};

}  // namespace nerida

#pragma once

#include "host/render/noise.h"
#include "host/render/shaders.h"

// Surfaces as a hand lays them on paper or board; everything that is uneven about them belongs to the sheet.

namespace nerida {

struct PencilShader {
  Lamp lamp;
  Vec3 paper, lead;
  float tint = 0;  ///< how much of the surface's colour lies under the hatching
  float unit = 1;  ///< pixels between hatches grow with the picture
  ToneEncoder encode{};
  const Sheet& tooth = paperGrain();

  [[nodiscard]] std::uint32_t background(int x, int y) const { return encode(paper * (1 - 0.1F * tooth(x, y))); }

  [[nodiscard]] Vec3 operator()(const SurfacePoint& p) const {
    const float light =
        (0.30F * skyLight(p.normal) + 0.85F * lamp.reach(p.normal)) * (0.45F + 0.55F * brightnessOf(p.color));
    const float dark = std::clamp(1 - 1.3F * light, 0.0F, 1.0F);
    const float rough = 0.55F + 0.45F * grain(static_cast<int>(p.x), static_cast<int>(p.y));
    const float shake = dark > 0 ? 2.0F * unit * softGrain(p.x * 0.04F / unit, p.y * 0.04F / unit) : 0;
    float lines = hatch(p.x + p.y + shake, dark * 1.25F - 0.12F);
    lines = std::max(lines, hatch(p.x - p.y * 0.55F - shake, dark * 1.5F - 0.72F));
    lines = std::max(lines, 0.35F * dark * dark);
    return mix(mix(paper, p.color, tint), lead, std::min(lines * rough, 0.92F));
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

struct ChalkShader {
  Lamp lamp;
  Vec3 board;
  float unit = 1;  ///< strokes grow with the picture
  ToneEncoder encode{};
  const Sheet& tooth = paperGrain();
  const Sheet& smears = patches();

  /// Wiped, but not clean.
  [[nodiscard]] std::uint32_t background(int x, int y) const { return encode(wiped(x, y)); }

  /// The lit parts are those that the chalk went over.
  [[nodiscard]] Vec3 operator()(const SurfacePoint& p) const {
    const int x = static_cast<int>(p.x), y = static_cast<int>(p.y);
    const float light = 0.30F * skyLight(p.normal) + 0.85F * lamp.reach(p.normal);
    const float stroke = softGrain((p.x + p.y) * 0.02F / unit, (p.x - p.y) * 0.30F / unit);
    const float pressure = 1.15F * light - 0.16F + 0.55F * (stroke - 0.5F);
    const float chalk = std::clamp(pressure * (1.4F - 0.95F * tooth(x, y)), 0.06F, 0.95F);
    return mix(wiped(x, y), mix(p.color, {0.90F, 0.90F, 0.86F}, 0.22F), chalk);
  }

 private:
  [[nodiscard]] Vec3 wiped(int x, int y) const {
    const float scale = 0.4F / unit;
    const float smear =
        smears(static_cast<int>(static_cast<float>(x) * scale), static_cast<int>(static_cast<float>(y) * scale));
    return board * (0.86F + 0.40F * smear * smear + 0.12F * tooth(x, y));
  }
};

struct WatercolorShader {
  Lamp lamp;
  Vec3 paper;
  float unit = 1;  ///< washes grow with the picture
  ToneEncoder encode{};
  const Sheet& tooth = paperGrain();
  float body = 1 - brightnessOf(paper);  ///< dark paper takes a ground of white first, as no wash would be seen on it

  [[nodiscard]] std::uint32_t background(int x, int y) const { return encode(rough(x, y)); }

  /// A pale wash everywhere, a second one out of the light, a third in the shade: each dries darkest at its border.
  [[nodiscard]] Vec3 operator()(const SurfacePoint& p) const {
    const float flow = softGrain(p.x * 0.022F / unit, p.y * 0.022F / unit) - 0.5F;
    const float ripple = softGrain(p.x * 0.09F / unit, p.y * 0.09F / unit) - 0.5F;
    const float light = 0.25F * skyLight(p.normal) + 0.80F * lamp.reach(p.normal) + 0.16F * flow + 0.07F * ripple;
    const float side = edgeOn(p.normal);
    const float pigment = 0.68F + 0.35F * flow + 0.30F * side * side + 0.28F * layer(light, 0.78F);
    const float shade = 0.60F * layer(light, 0.40F) + 0.12F * std::max(0.0F, -flow);
    const Vec3 washed = mix({1, 1, 1}, p.color, std::clamp(pigment, 0.2F, 1.0F));
    const Vec3 sheet = mix(rough(static_cast<int>(p.x), static_cast<int>(p.y)), {1, 1, 1}, body);
    return sheet * mix(washed, washed * Vec3{0.42F, 0.44F, 0.62F}, shade);
  }

 private:
  [[nodiscard]] Vec3 rough(int x, int y) const { return paper * (1 - 0.09F * tooth(x, y)); }

  static float layer(float light, float border) {
    constexpr float softness = 0.05F, rim = 0.10F;
    const float inside = border - light;
    const float pooled = inside > 0 ? 0.35F * std::max(0.0F, 1 - inside / rim) : 0;
    return std::clamp(inside / softness + 0.5F, 0.0F, 1.0F) * (1 + pooled);
  }
};

}  // namespace nerida

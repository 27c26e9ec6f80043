#pragma once

#include <array>
#include <cstdint>

#include "host/render/color.h"
#include "host/render/vec.h"

namespace nerida {

/// One component, 0 to 255, as linear light 0 to 1.
float linearFromByte(unsigned component);

inline Vec3 linearFromRgb(PackedRgb color) {
  return {linearFromByte(redOf(color)), linearFromByte(greenOf(color)), linearFromByte(blueOf(color))};
}

/// Steps of linear light that are told apart: fine enough that no two neighbouring bytes fall together.
constexpr int toneSteps = 4096;
const std::array<std::uint8_t, toneSteps>& toneTable();

/// Turns linear light into pixels; light beyond white is cut off.
class ToneEncoder {
 public:
  std::uint32_t operator()(Vec3 light) const {
    return 0xFF000000U | component(light.x) << 16U | component(light.y) << 8U | component(light.z);
  }

 private:
  [[nodiscard]] std::uint32_t component(float light) const {
    constexpr auto top = static_cast<float>(toneSteps - 1);
    const float step = light * top + 0.5F;
    return table[static_cast<std::size_t>(step > 0 ? (step < top ? step : top) : 0)];
  }
  const std::array<std::uint8_t, toneSteps>& table = toneTable();
};

constexpr std::uint32_t pixelFromRgb(PackedRgb color) {
  return 0xFF000000U | redOf(color) << 16U | greenOf(color) << 8U | blueOf(color);
}

/// From `under` (weight 0) to `over` (weight 256).
constexpr std::uint32_t mixPixels(std::uint32_t under, std::uint32_t over, std::uint32_t weight) {
  const std::uint32_t rest = 256 - weight;
  const std::uint32_t redBlue = ((under & 0xFF00FFU) * rest + (over & 0xFF00FFU) * weight) >> 8U & 0xFF00FFU;
  const std::uint32_t green = ((under & 0xFF00U) * rest + (over & 0xFF00U) * weight) >> 8U & 0xFF00U;
  return 0xFF000000U | redBlue | green;
}

}  // namespace nerida

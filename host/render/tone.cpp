#include "host/render/tone.h"

namespace nerida {
namespace {

float decode(float s) { return s <= 0.04045F ? s / 12.92F : std::pow((s + 0.055F) / 1.055F, 2.4F); }
float encode(float l) { return l <= 0.0031308F ? l * 12.92F : 1.055F * std::pow(l, 1 / 2.4F) - 0.055F; }

}  // namespace

float linearFromByte(unsigned component) { return decode(static_cast<float>(component & 0xFFU) / 255.0F); }

const std::array<std::uint8_t, toneSteps>& toneTable() {
  static const auto table = [] {
    std::array<std::uint8_t, toneSteps> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      const float light = static_cast<float>(i) / static_cast<float>(toneSteps - 1);
      bytes[i] = static_cast<std::uint8_t>(std::lround(encode(light) * 255.0F));
    }
    return bytes;
  }();
  return table;
}

}  // namespace nerida

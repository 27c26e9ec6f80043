#include "platform/picture_scale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace nerida {
namespace {

constexpr int channels = 4;
constexpr int bitsOfChannel = 8;
constexpr std::uint32_t channelMask = 0xFF;

// What one pixel of the target covers of the source, along one axis.
struct Span {
  double from;
  double to;

  int first() const { return static_cast<int>(from); }
  int end(int size) const { return std::min(static_cast<int>(std::ceil(to)), size); }
  double covers(int pixel) const { return std::min(to, pixel + 1.0) - std::max(from, static_cast<double>(pixel)); }
};

Span spanOf(int pixel, int targetSize, int sourceSize) {
  const double step = static_cast<double>(sourceSize) / targetSize;
  return {pixel * step, (pixel + 1) * step};
}

std::uint32_t rounded(double value) { return static_cast<std::uint32_t>(std::lround(value)); }

std::uint32_t average(const Picture& picture, const Span& across, const Span& down) {
  std::array<double, channels> sums = {};
  double total = 0;
  for (int y = down.first(); y < down.end(picture.height); ++y) {
    for (int x = across.first(); x < across.end(picture.width); ++x) {
      const double weight = across.covers(x) * down.covers(y);
      const std::uint32_t pixel = picture.pixels[static_cast<std::size_t>(y) * picture.width + x];
      for (int i = 0; i < channels; ++i) sums[i] += weight * (pixel >> (i * bitsOfChannel) & channelMask);
      total += weight;
    }
  }
  std::uint32_t mixed = 0;
  for (int i = 0; i < channels; ++i) mixed |= rounded(sums[i] / total) << (i * bitsOfChannel);
  return mixed;
}

}  // namespace

Picture scaled(const Picture& picture, int width, int height) {
  if (picture.pixels.empty() || width <= 0 || height <= 0) return {};
  Picture result{width, height, {}};
  result.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) {
    const Span down = spanOf(y, height, picture.height);
    for (int x = 0; x < width; ++x) result.pixels.push_back(average(picture, spanOf(x, width, picture.width), down));
  }
  return result;
}

}  // namespace nerida

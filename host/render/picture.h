#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace nerida {

/// Pixels for a 32-bit top-down DIB: bytes blue, green, red, alpha (always 255), no padding between rows.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;

  Picture() = default;
  Picture(int widthInPixels, int heightInPixels) { resize(widthInPixels, heightInPixels); }

  void resize(int widthInPixels, int heightInPixels) {
    width = widthInPixels;
    height = heightInPixels;
    pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  }

  [[nodiscard]] std::uint32_t* row(int y) {
    return pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
  }
  [[nodiscard]] const std::uint32_t* row(int y) const {
    return pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
  }
};

}  // namespace nerida

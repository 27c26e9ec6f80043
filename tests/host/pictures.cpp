#include "tests/host/pictures.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#pragma GCC diagnostic ignored "-Wunused-function"
#pragma GCC diagnostic ignored "-Wunused-but-set-variable"
#define STB_IMAGE_STATIC
#define STB_IMAGE_IMPLEMENTATION
#include <stb/stb_image.h>
#define STB_IMAGE_WRITE_STATIC
#define STB_IMAGE_WRITE_IMPLEMENTATION
#include <stb/stb_image_write.h>
#pragma GCC diagnostic pop

namespace nerida {
namespace {

/// PNG keeps red first, a picture blue first.
void swapRedAndBlue(Picture& picture) {
  for (std::uint32_t& pixel : picture.pixels) {
    pixel = (pixel & 0xFF00FF00U) | (pixel >> 16U & 0xFFU) | (pixel & 0xFFU) << 16U;
  }
}

}  // namespace

Color colorAt(const Picture& picture, int x, int y) {
  const std::uint32_t pixel = picture.row(y)[x];
  return {static_cast<int>(pixel >> 16U & 0xFFU), static_cast<int>(pixel >> 8U & 0xFFU),
          static_cast<int>(pixel & 0xFFU)};
}

double brightnessAt(const Picture& picture, int x, int y) {
  const Color color = colorAt(picture, x, y);
  return 0.2126 * color.red + 0.7152 * color.green + 0.0722 * color.blue;
}

Drawn drawnPart(const Picture& picture) {
  Drawn drawn{0, 0, 0, picture.width, picture.height, -1, -1, 0};
  const Color ground = colorAt(picture, 0, 0);
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      if (colorAt(picture, x, y) == ground) continue;
      ++drawn.count;
      drawn.centerX += x;
      drawn.centerY += y;
      drawn.brightness += brightnessAt(picture, x, y);
      drawn.left = std::min(drawn.left, x);
      drawn.top = std::min(drawn.top, y);
      drawn.right = std::max(drawn.right, x);
      drawn.bottom = std::max(drawn.bottom, y);
    }
  }
  const double count = drawn.count > 0 ? static_cast<double>(drawn.count) : 1;
  drawn.centerX /= count;
  drawn.centerY /= count;
  drawn.brightness /= count;
  return drawn;
}

long differences(const Picture& a, const Picture& b, int tolerance) {
  if (a.width != b.width || a.height != b.height) throw std::invalid_argument("pictures of different sizes");
  long count = 0;
  for (int y = 0; y < a.height; ++y) {
    for (int x = 0; x < a.width; ++x) {
      const Color p = colorAt(a, x, y), q = colorAt(b, x, y);
      const int most = std::max({std::abs(p.red - q.red), std::abs(p.green - q.green), std::abs(p.blue - q.blue)});
      if (most > tolerance) ++count;
    }
  }
  return count;
}

std::optional<Picture> readPng(const std::filesystem::path& file) {
  int width = 0, height = 0, channels = 0;
  unsigned char* pixels = stbi_load(file.string().c_str(), &width, &height, &channels, 4);
  if (pixels == nullptr) return {};
  Picture picture(width, height);
  std::copy(pixels, pixels + picture.pixels.size() * 4, reinterpret_cast<unsigned char*>(picture.pixels.data()));
  stbi_image_free(pixels);
  swapRedAndBlue(picture);
  return picture;
}

void writePng(const std::filesystem::path& file, Picture picture) {
  swapRedAndBlue(picture);
  std::filesystem::create_directories(file.parent_path());
  if (stbi_write_png(file.string().c_str(), picture.width, picture.height, 4, picture.pixels.data(),
                     picture.width * 4) == 0) {
    throw std::runtime_error("cannot write " + file.string());
  }
}

}  // namespace nerida

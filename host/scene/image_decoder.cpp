#include "host/scene/image_decoder.h"

#include <limits>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
#pragma GCC diagnostic ignored "-Wunused-function"
#pragma GCC diagnostic ignored "-Wunused-but-set-variable"
#ifndef __clang_analyzer__  // which would look for faults in the borrowed code too
#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#endif
#define STBI_ONLY_PNG
#define STBI_ONLY_JPEG
#define STBI_NO_STDIO
#define STBI_MAX_DIMENSIONS 8192
#define STBI_NO_SIMD
#include <stb/stb_image.h>
#pragma GCC diagnostic pop

namespace nerida {

std::optional<DecodedImage> decodeImage(const std::vector<unsigned char>& encoded) {
  constexpr int mostPixels = 4096 * 4096;
  if (encoded.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) return {};
  const int size = static_cast<int>(encoded.size());
  DecodedImage image;
  int channels = 0;
  if (stbi_info_from_memory(encoded.data(), size, &image.width, &image.height, &channels) == 0) return {};
  if (image.width <= 0 || image.height <= 0 || image.width > mostPixels / image.height) return {};
  unsigned char* pixels = stbi_load_from_memory(encoded.data(), size, &image.width, &image.height, &channels, 4);
  if (pixels == nullptr) return {};
  const auto bytes = static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height) * 4;
  image.rgba.assign(pixels, pixels + bytes);
  stbi_image_free(pixels);
  return image;
}

}  // namespace nerida

#pragma once

#include <optional>
#include <vector>

namespace nerida {

struct DecodedImage {
  int width = 0, height = 0;
  std::vector<unsigned char> rgba;
};

/// PNG or JPEG; nothing when the bytes are neither, are damaged, or describe an unreasonably large picture.
std::optional<DecodedImage> decodeImage(const std::vector<unsigned char>& encoded);

}  // namespace nerida

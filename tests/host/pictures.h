#pragma once

#include <filesystem>
#include <optional>

#include "host/render/renderer.h"

namespace nerida {

struct Color {
  int red = 0, green = 0, blue = 0;
  friend bool operator==(const Color&, const Color&) = default;
};

Color colorAt(const Picture& picture, int x, int y);
double brightnessAt(const Picture& picture, int x, int y);  ///< 0 to 255

/// Pixels that are unlike the picture's upper left one.
struct Drawn {
  long count = 0;
  double centerX = 0, centerY = 0;
  int left = 0, top = 0, right = 0, bottom = 0;
  double brightness = 0;  ///< of all of them, on average
};
Drawn drawnPart(const Picture& picture);

/// How many pixels differ by more than `tolerance` in a component.
long differences(const Picture& a, const Picture& b, int tolerance);

std::optional<Picture> readPng(const std::filesystem::path& file);
void writePng(const std::filesystem::path& file, Picture picture);

}  // namespace nerida

#pragma once

#include <compare>
#include <cstdint>

namespace nerida {

// Red + 256 green + 65536 blue.
using Rgb = std::int32_t;

// An opaque window identifier; 0 is no window. On Windows it is the HWND.
using WindowHandle = std::intptr_t;

// A length in twips (1/1440 inch): the unit in which forms are laid out.
struct Twips {
  std::int32_t value = 0;
  friend constexpr auto operator<=>(Twips, Twips) = default;  // NOLINT(modernize-use-nullptr): there is no pointer
  friend constexpr Twips operator+(Twips a, Twips b) { return {a.value + b.value}; }
  friend constexpr Twips operator-(Twips a, Twips b) { return {a.value - b.value}; }
};

// A point in screen pixels.
struct Point {
  std::int32_t x = 0;
  std::int32_t y = 0;
  friend constexpr bool operator==(Point, Point) = default;
};

struct Size {
  std::int32_t width = 0;
  std::int32_t height = 0;
  friend constexpr bool operator==(Size, Size) = default;
};

// A rectangle on a form, in twips from the client area's top-left corner.
struct Bounds {
  Twips left, top, width, height;
  friend constexpr bool operator==(const Bounds&, const Bounds&) = default;
};

// Bounds as layouts write them, in twips.
constexpr Bounds at(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
  return {{left}, {top}, {width}, {height}};
}

}  // namespace nerida

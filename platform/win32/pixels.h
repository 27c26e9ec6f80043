#pragma once

#include <cstdint>
#include <span>

#include "platform/bitmap_resources.h"

namespace nerida {

// Opaque colours as they lie in a picture: 0x00RRGGBB.
using PixelColor = std::uint32_t;

PixelColor mixed(PixelColor a, PixelColor b, int percentOfB);

// Nearer to black than to white.
bool isDark(PixelColor color);

struct Box {
  int left, top, right, bottom;  // right and bottom are outside
};

// Pixels that are drawn to directly: a back buffer without its window. Everything is clipped to it.
class PixelCanvas {
 public:
  PixelCanvas(std::uint32_t* start, int lineLength, int visibleWidth, int visibleHeight)
      : pixels(start), stride(lineLength), width(visibleWidth), height(visibleHeight) {}

  void fill(Box box, PixelColor color);
  void fillChecked(Box box, PixelColor a, PixelColor b);  // every other pixel
  // A one-pixel frame with softened corners, lit from the top left.
  void frame(Box box, PixelColor topLeft, PixelColor bottomRight);
  void dottedFrame(Box box, PixelColor color);
  void draw(const Picture& picture, int x, int y);
  // The picture without its colours and half faded, as on something that cannot be used.
  void drawGreyed(const Picture& picture, int x, int y);
  // For dark grounds, on which the dark strokes of a picture would be lost: they are as much lighter than the middle as
  // they are darker. What cannot be used is in one colour there, since faded it would be too near to the ground.
  void drawOnDark(const Picture& picture, int x, int y);
  void drawUnusableOnDark(const Picture& picture, int x, int y, PixelColor color);

 private:
  template <class Shade>
  void blend(const Picture& picture, int x, int y, Shade shade);
  Box clipped(Box box) const;
  std::uint32_t& at(int x, int y) { return pixels[static_cast<std::ptrdiff_t>(y) * stride + x]; }
  void dot(int x, int y, PixelColor color);

  std::uint32_t* pixels;
  int stride;
  int width;
  int height;
};

}  // namespace nerida

#include "platform/win32/pixels.h"

#include <algorithm>

namespace nerida {
namespace {

// Lays a colour multiplied by its alpha over an opaque one.
PixelColor over(std::uint32_t color, PixelColor below) {
  const std::uint32_t rest = 255 - (color >> 24);
  const auto channel = [&](unsigned shift) {
    const std::uint32_t sum = (color >> shift & 255) + ((below >> shift & 255) * rest + 127) / 255;
    return std::min<std::uint32_t>(sum, 255) << shift;
  };
  return channel(16) | channel(8) | channel(0);
}

// As bright as the colour is to the eye, from 0 to 255; of a colour multiplied by its alpha, up to that.
std::uint32_t brightness(std::uint32_t color) {
  return ((color >> 16 & 255) * 77 + (color >> 8 & 255) * 150 + (color & 255) * 29) / 256;
}

std::uint32_t greyed(std::uint32_t color) {
  const std::uint32_t alpha = (color >> 24) / 2;
  // Raised towards the middle, so that dark outlines do not stay the darkest thing on the bar.
  const std::uint32_t grey = std::min(alpha, brightness(color) / 4 + alpha * 2 / 5);
  return alpha << 24 | grey << 16 | grey << 8 | grey;
}

std::uint32_t lifted(std::uint32_t color) {
  const std::uint32_t alpha = color >> 24;
  const std::uint32_t light = 2 * brightness(color);
  if (light >= alpha) return color;
  const auto channel = [&](unsigned shift) { return std::min(alpha, (color >> shift & 255) + alpha - light) << shift; };
  return alpha << 24 | channel(16) | channel(8) | channel(0);
}

// The shape of a picture in one colour, its shades between half and all of it.
std::uint32_t inColor(std::uint32_t picture, PixelColor color) {
  const std::uint32_t alpha = picture >> 24;
  const std::uint32_t light = (alpha + brightness(lifted(picture))) / 2;
  const auto channel = [&](unsigned shift) { return (color >> shift & 255) * light / 255 << shift; };
  return alpha << 24 | channel(16) | channel(8) | channel(0);
}

}  // namespace

PixelColor mixed(PixelColor a, PixelColor b, int percentOfB) {
  const auto part = static_cast<std::uint32_t>(percentOfB);
  const auto channel = [&](unsigned shift) {
    return (((a >> shift & 255) * (100 - part) + (b >> shift & 255) * part + 50) / 100) << shift;
  };
  return channel(16) | channel(8) | channel(0);
}

bool isDark(PixelColor color) { return brightness(color) < 128; }

Box PixelCanvas::clipped(Box box) const {
  return {std::max(box.left, 0), std::max(box.top, 0), std::min(box.right, width), std::min(box.bottom, height)};
}

void PixelCanvas::dot(int x, int y, PixelColor color) {
  if (x >= 0 && y >= 0 && x < width && y < height) at(x, y) = color;
}

void PixelCanvas::fill(Box box, PixelColor color) { fillChecked(box, color, color); }

void PixelCanvas::fillChecked(Box box, PixelColor a, PixelColor b) {
  const Box part = clipped(box);
  for (int y = part.top; y < part.bottom; ++y) {
    for (int x = part.left; x < part.right; ++x) at(x, y) = (x + y) % 2 == 0 ? a : b;
  }
}

void PixelCanvas::frame(Box box, PixelColor topLeft, PixelColor bottomRight) {
  for (int x = box.left + 1; x < box.right - 1; ++x) {
    dot(x, box.top, topLeft);
    dot(x, box.bottom - 1, bottomRight);
  }
  for (int y = box.top + 1; y < box.bottom - 1; ++y) {
    dot(box.left, y, topLeft);
    dot(box.right - 1, y, bottomRight);
  }
}

void PixelCanvas::dottedFrame(Box box, PixelColor color) {
  const auto dotted = [&](int x, int y) {
    if ((x + y) % 2 == 0) dot(x, y, color);
  };
  for (int x = box.left; x < box.right; ++x) {
    dotted(x, box.top);
    dotted(x, box.bottom - 1);
  }
  for (int y = box.top; y < box.bottom; ++y) {
    dotted(box.left, y);
    dotted(box.right - 1, y);
  }
}

template <class Shade>
void PixelCanvas::blend(const Picture& picture, int x, int y, Shade shade) {
  const Box part = clipped({x, y, x + picture.width, y + picture.height});
  for (int row = part.top; row < part.bottom; ++row) {
    const std::uint32_t* source =
        &picture.pixels[static_cast<std::size_t>(row - y) * static_cast<std::size_t>(picture.width)];
    for (int column = part.left; column < part.right; ++column) {
      at(column, row) = over(shade(source[column - x]), at(column, row));
    }
  }
}

void PixelCanvas::draw(const Picture& picture, int x, int y) {
  blend(picture, x, y, [](std::uint32_t color) { return color; });
}

void PixelCanvas::drawGreyed(const Picture& picture, int x, int y) { blend(picture, x, y, greyed); }

void PixelCanvas::drawOnDark(const Picture& picture, int x, int y) { blend(picture, x, y, lifted); }

void PixelCanvas::drawUnusableOnDark(const Picture& picture, int x, int y, PixelColor color) {
  blend(picture, x, y, [color](std::uint32_t shade) { return inColor(shade, color); });
}

}  // namespace nerida

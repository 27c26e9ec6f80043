#include "platform/bitmap_resources.h"

#include <algorithm>
#include <cmath>

#include "platform/resource_directory.h"

namespace nerida {
namespace {

constexpr std::size_t largestFile = std::size_t{64} << 20;
constexpr int largestSide = 16384;
constexpr std::uint32_t magenta = 0xFFFF00FF;
constexpr std::uint32_t headerSize = 40;

// A device-independent bitmap inside the file, checked as a whole before any of its pixels is read.
struct Dib {
  Bytes palette;  // four bytes a colour
  Bytes rows;
  int width = 0;
  int height = 0;
  int bits = 0;
  bool topDown = false;
  std::size_t stride = 0;

  std::uint32_t pixel(int x, int y) const;  // straight alpha
  std::uint32_t paletteColor(unsigned index) const;
};

std::uint32_t Dib::paletteColor(unsigned index) const {
  return 0xFF000000U | read32(palette, std::size_t{4} * index).value_or(0);
}

std::uint32_t Dib::pixel(int x, int y) const {
  const Bytes row = rows.subspan(static_cast<std::size_t>(topDown ? y : height - 1 - y) * stride, stride);
  const auto column = static_cast<std::size_t>(x);
  if (bits == 32) return *read32(row, column * 4);
  if (bits == 24) {
    const std::uint8_t* p = &row[column * 3];
    return 0xFF000000U | static_cast<std::uint32_t>(p[2] << 16 | p[1] << 8 | p[0]);
  }
  const auto depth = static_cast<unsigned>(bits);
  const unsigned shift = 8 - depth - (static_cast<unsigned>(x) * depth) % 8;
  return paletteColor((row[column * depth / 8] >> shift) & ((1U << depth) - 1));
}

bool isKnownDepth(int bits) { return bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32; }

std::optional<Dib> readDib(Bytes data) {
  if (data.size() < headerSize || *read32(data, 0) < headerSize) return std::nullopt;
  Dib dib;
  dib.width = static_cast<std::int32_t>(*read32(data, 4));
  const auto height = static_cast<std::int32_t>(*read32(data, 8));
  if (dib.width < 1 || dib.width > largestSide || height < -largestSide || height > largestSide || height == 0) {
    return std::nullopt;
  }
  dib.topDown = height < 0;
  dib.height = std::abs(height);
  dib.bits = *read16(data, 14);
  const std::uint32_t compression = *read32(data, 16);
  if (!isKnownDepth(dib.bits) || compression != 0) return std::nullopt;
  const std::uint32_t used = *read32(data, 32);
  const std::uint32_t colors = used != 0 || dib.bits > 8 ? used : 1U << dib.bits;
  if (colors > 256) return std::nullopt;
  const std::size_t start = std::size_t{*read32(data, 0)} + std::size_t{4} * colors;
  dib.stride = (static_cast<std::size_t>(dib.width * dib.bits) + 31) / 32 * 4;
  const std::size_t size = dib.stride * static_cast<std::size_t>(dib.height);
  if (start > data.size() || size > data.size() - start) return std::nullopt;
  dib.palette = data.subspan(*read32(data, 0), std::size_t{4} * colors);
  dib.rows = data.subspan(start, size);
  return dib;
}

std::uint32_t multiplied(std::uint32_t color) {
  const std::uint32_t alpha = color >> 24;
  const auto channel = [&](unsigned shift) { return (((color >> shift & 255) * alpha + 127) / 255) << shift; };
  return alpha << 24 | channel(16) | channel(8) | channel(0);
}

// The part of a bitmap under a rectangle; nothing when they do not meet.
std::optional<Picture> cut(const Dib& dib, int left, int top, int width, int height) {
  const int firstX = std::max(0, -left);
  const int firstY = std::max(0, -top);
  const int endX = std::min(width, dib.width - left);
  const int endY = std::min(height, dib.height - top);
  if (firstX >= endX || firstY >= endY || width > largestSide || height > largestSide) return std::nullopt;
  Picture picture{endX, endY, {}};
  picture.pixels.resize(static_cast<std::size_t>(endX) * static_cast<std::size_t>(endY));
  for (int y = firstY; y < endY; ++y) {
    for (int x = firstX; x < endX; ++x) {
      std::uint32_t color = dib.pixel(left + x, top + y);
      if (dib.bits < 32 && color == magenta) color = 0;
      picture.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(endX) + static_cast<std::size_t>(x)] =
          multiplied(color);
    }
  }
  return picture;
}

// How much of each source pixel one target pixel covers, along one axis.
struct Coverage {
  int first;
  std::vector<double> shares;
};

Coverage coverage(int target, int targetSize, int sourceSize) {
  const double from = static_cast<double>(target) * sourceSize / targetSize;
  const double to = static_cast<double>(target + 1) * sourceSize / targetSize;
  Coverage result{static_cast<int>(from), {}};
  for (int i = result.first; i < to && i < sourceSize; ++i) {
    result.shares.push_back((std::min(to, i + 1.0) - std::max(from, static_cast<double>(i))) / (to - from));
  }
  return result;
}

std::uint32_t averaged(const Picture& source, const Coverage& across, const Coverage& down) {
  double sums[4] = {};
  for (std::size_t j = 0; j < down.shares.size(); ++j) {
    const std::size_t row = (static_cast<std::size_t>(down.first) + j) * static_cast<std::size_t>(source.width);
    for (std::size_t i = 0; i < across.shares.size(); ++i) {
      const std::uint32_t color = source.pixels[row + static_cast<std::size_t>(across.first) + i];
      const double share = across.shares[i] * down.shares[j];
      for (unsigned c = 0; c < 4; ++c) sums[c] += share * (color >> (8 * c) & 255);
    }
  }
  std::uint32_t color = 0;
  for (unsigned c = 0; c < 4; ++c) color |= static_cast<std::uint32_t>(std::lround(sums[c])) << (8 * c);
  return color;
}

Picture resized(const Picture& source, int width, int height) {
  Picture target{width, height, {}};
  target.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) {
    const Coverage down = coverage(y, height, source.height);
    for (int x = 0; x < width; ++x) target.pixels.push_back(averaged(source, coverage(x, width, source.width), down));
  }
  return target;
}

std::string inCapitals(std::string name) {
  for (char& c : name) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return name;
}

// The variants that serve a scale, best first: the smallest one that is large enough, else the largest.
std::vector<int> variantsFor(int percent) {
  if (percent <= 100) return {100, 150, 200};
  if (percent <= 150) return {150, 200, 100};
  return {200, 150, 100};
}

int scaled(int length, int percent) { return length * percent / 100; }

}  // namespace

BitmapResources::BitmapResources(std::vector<std::uint8_t> bytes) : content(std::move(bytes)) {
  if (content.size() > largestFile) return;
  for (const ResourceEntry& entry : listBitmaps(content)) {
    bitmaps.try_emplace(entry.name, Extent{entry.offset, entry.size});
  }
}

std::optional<Picture> BitmapResources::picture(const BitmapSpec& spec, int percent) const {
  const std::string name = inCapitals(spec.file);
  for (const int variant : variantsFor(percent)) {
    const auto found = bitmaps.find(variant == 100 ? name : name + "@" + std::to_string(variant));
    if (found == bitmaps.end()) continue;
    const std::optional<Dib> dib = readDib(Bytes(content).subspan(found->second.offset, found->second.size));
    if (!dib) continue;
    std::optional<Picture> part = cut(*dib, scaled(spec.left, variant), scaled(spec.top, variant),
                                      scaled(spec.width, variant), scaled(spec.height, variant));
    if (!part || variant == percent) return part;
    return resized(*part, std::max(1, part->width * percent / variant), std::max(1, part->height * percent / variant));
  }
  return std::nullopt;
}

}  // namespace nerida

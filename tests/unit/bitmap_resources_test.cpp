#include "platform/bitmap_resources.h"

#include <gtest/gtest.h>

#include <random>

namespace nerida {
namespace {

using Data = std::vector<std::uint8_t>;

void put(Data& data, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) data.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

void putEntry(Data& file, const std::string& name, const Data& content) {
  Data header;
  put(header, 0xFFFF, 2);
  put(header, 2, 2);  // a bitmap
  for (const char c : name) put(header, static_cast<std::uint8_t>(c), 2);
  put(header, 0, 2);
  while (header.size() % 4 != 0) header.push_back(0);
  header.resize(header.size() + 16);
  put(file, static_cast<std::uint32_t>(content.size()), 4);
  put(file, static_cast<std::uint32_t>(header.size() + 8), 4);
  file.insert(file.end(), header.begin(), header.end());
  file.insert(file.end(), content.begin(), content.end());
  while (file.size() % 4 != 0) file.push_back(0);
}

Data emptyFile() {
  Data file = {0, 0, 0, 0, 32, 0, 0, 0, 255, 255, 0, 0, 255, 255, 0, 0};
  file.resize(32);
  return file;
}

Data header(int width, int height, int bits, std::uint32_t colors = 0) {
  Data dib;
  put(dib, 40, 4);
  put(dib, static_cast<std::uint32_t>(width), 4);
  put(dib, static_cast<std::uint32_t>(height), 4);
  put(dib, 1, 2);
  put(dib, static_cast<std::uint32_t>(bits), 2);
  dib.resize(32);
  put(dib, colors, 4);
  dib.resize(40);
  return dib;
}

// Bottom-up and opaque, every pixel with its place in it: red is x, green is y.
Data placesBitmap(int width, int height) {
  Data dib = header(width, height, 32);
  for (int y = height - 1; y >= 0; --y) {
    for (int x = 0; x < width; ++x) put(dib, 0xFF000000U | static_cast<std::uint32_t>(x << 16 | y << 8), 4);
  }
  return dib;
}

BitmapResources with(const std::string& name, const Data& dib) {
  Data file = emptyFile();
  putEntry(file, name, dib);
  return BitmapResources(file);
}

TEST(BitmapResources, CutsTheNamedRectangleWhateverTheCaseOfTheName) {
  const BitmapResources resources = with("STRIP.BMP", placesBitmap(10, 5));
  const auto picture = resources.picture({5, "Strip.bmp", 3, 1, 2, 2}, 100);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->width, 2);
  EXPECT_EQ(picture->pixels, (std::vector<std::uint32_t>{0xFF030100, 0xFF040100, 0xFF030200, 0xFF040200}));
}

TEST(BitmapResources, MultipliesColoursByTheirAlpha) {
  Data dib = header(1, 1, 32);
  put(dib, 0x80FF4000, 4);
  EXPECT_EQ(with("A", dib).picture({5, "a", 0, 0, 1, 1}, 100)->pixels.front(), 0x80802000U);
}

TEST(BitmapResources, ReadsLowDepthsAndTakesMagentaForTransparent) {
  Data one = header(2, 1, 1, 2);
  put(one, 0x00112233, 4);
  put(one, 0x00FF00FF, 4);
  put(one, 0x40, 4);  // the first bits of the row: 0, 1
  EXPECT_EQ(with("A", one).picture({5, "A", 0, 0, 2, 1}, 100)->pixels, (std::vector<std::uint32_t>{0xFF112233, 0}));

  Data four = header(2, -1, 4, 3);
  for (const std::uint32_t color : {1U, 2U, 3U}) put(four, color, 4);
  put(four, 0x21, 4);
  EXPECT_EQ(with("A", four).picture({5, "A", 0, 0, 2, 1}, 100)->pixels,
            (std::vector<std::uint32_t>{0xFF000003, 0xFF000002}));

  Data full = header(1, 1, 24);
  put(full, 0x00ABCDEF, 4);
  EXPECT_EQ(with("A", full).picture({5, "A", 0, 0, 1, 1}, 100)->pixels.front(), 0xFFABCDEFU);
}

TEST(BitmapResources, TakesTheVariantForTheScale) {
  Data file = emptyFile();
  putEntry(file, "A.BMP", placesBitmap(20, 4));
  putEntry(file, "A.BMP@200", placesBitmap(40, 8));
  const BitmapResources resources(file);
  const auto doubled = resources.picture({5, "a.bmp", 5, 1, 4, 2}, 200);
  ASSERT_TRUE(doubled);
  EXPECT_EQ(doubled->width, 8);
  EXPECT_EQ(doubled->pixels.front(), 0xFF0A0200U);
  const auto between = resources.picture({5, "a.bmp", 5, 1, 4, 2}, 150);
  ASSERT_TRUE(between);
  EXPECT_EQ(between->width, 6);
  EXPECT_EQ(between->height, 3);
}

TEST(BitmapResources, KnowsNothingOutsideOfABitmap) {
  const BitmapResources resources = with("A", placesBitmap(10, 5));
  EXPECT_FALSE(resources.picture({5, "B", 0, 0, 1, 1}, 100));
  EXPECT_FALSE(resources.picture({5, "A", 10, 0, 1, 1}, 100));
  EXPECT_FALSE(resources.picture({5, "A", 0, -3, 5, 3}, 100));
  const auto reaching = resources.picture({5, "A", -1, 0, 2, 1}, 100);
  ASSERT_TRUE(reaching);
  EXPECT_EQ(reaching->pixels, (std::vector<std::uint32_t>{0, 0xFF000000}));
}

TEST(BitmapResources, RefusesForeignAndImpossibleContent) {
  EXPECT_TRUE(BitmapResources({}).isEmpty());
  EXPECT_TRUE(BitmapResources(Data(500, 'M')).isEmpty());
  for (const Data& dib : {header(0, 5, 32), header(100000, 5, 32), header(5, INT32_MIN, 32), header(5, 5, 16),
                          header(5, 5, 32), header(5, 5, 8, 0x7FFFFFFF), Data(20)}) {
    EXPECT_FALSE(with("A", dib).picture({5, "A", 0, 0, 5, 5}, 100));
  }
}

TEST(BitmapResources, LosesOnlyWhatIsTruncated) {
  Data file = emptyFile();
  putEntry(file, "FIRST", placesBitmap(3, 3));
  const std::size_t whole = file.size();
  putEntry(file, "SECOND", placesBitmap(3, 3));
  for (std::size_t size = whole; size < file.size(); ++size) {
    const BitmapResources cut(Data(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size)));
    EXPECT_TRUE(cut.picture({5, "First", 0, 0, 3, 3}, 100)) << size;
    EXPECT_FALSE(cut.picture({5, "Second", 0, 0, 3, 3}, 100)) << size;
  }
}

TEST(BitmapResources, SurvivesDamageAnywhere) {
  Data file = emptyFile();
  putEntry(file, "A", placesBitmap(8, 8));
  putEntry(file, "A@200", placesBitmap(16, 16));
  std::mt19937 random(7);
  for (int round = 0; round < 20000; ++round) {
    Data damaged = file;
    for (int i = 0; i < 3; ++i) damaged[random() % 200] = static_cast<std::uint8_t>(random());
    const auto picture = BitmapResources(damaged).picture({5, "A", 1, 1, 4, 4}, round % 2 == 0 ? 100 : 150);
    if (!picture) continue;
    ASSERT_EQ(picture->pixels.size(), static_cast<std::size_t>(picture->width * picture->height));
  }
}

}  // namespace
}  // namespace nerida

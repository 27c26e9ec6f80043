#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/host/pictures.h"
#include "tests/host/shapes.h"

namespace nerida {
namespace {

constexpr int width = 160, height = 120, centerX = width / 2, centerY = height / 2;
constexpr Vec3 grey{0.5F, 0.5F, 0.5F};

Look lookOf(const char* style) {
  Look look;
  look.style = findLookStyle(style);
  return look;
}

Picture draw(const Mesh& mesh, const Look& look, const View& view = {}) {
  Picture picture(width, height);
  Renderer().draw(mesh, view, look, picture);
  return picture;
}

Color colorOf(PackedRgb color) {
  return {static_cast<int>(redOf(color)), static_cast<int>(greenOf(color)), static_cast<int>(blueOf(color))};
}

TEST(Effects, anEmptyMeshGivesTheBackground) {
  Look look = lookOf("Shaded");
  look.background = makeRgb(10, 200, 30);
  const Picture picture = draw({}, look);
  EXPECT_EQ(colorAt(picture, 0, 0), (Color{10, 200, 30}));
  EXPECT_EQ(drawnPart(picture).count, 0);
}

TEST(Effects, everyStyleShowsAnExplicitBackground) {
  for (const LookStyle& style : lookStyles()) {
    Look look = lookOf("Shaded");
    look.style = &style;
    look.background = makeRgb(240, 20, 20);
    const Color corner = colorAt(draw(ball(0.5F, grey), look), 3, 3);
    EXPECT_GT(corner.red, 180) << style.name;
    EXPECT_LT(corner.green, 70) << style.name;
  }
}

TEST(Effects, pixelsAreOpaqueAndBlueFirst) {
  Look look = lookOf("Shaded");
  look.background = makeRgb(1, 2, 3);
  const Picture picture = draw({}, look);
  const auto* bytes = reinterpret_cast<const unsigned char*>(picture.pixels.data());
  EXPECT_EQ(bytes[0], 3);
  EXPECT_EQ(bytes[1], 2);
  EXPECT_EQ(bytes[2], 1);
  EXPECT_EQ(bytes[3], 255);
}

TEST(Effects, anExplicitSurfaceColorReplacesTheMaterials) {
  for (const char* style : {"Basic Draw", "Shaded", "Clay", "Flat Cartoon", "Comic Halftone", "Watercolour",
                            "Chalk on Board", "Ink Outline", "Hidden Line", "Silhouette"}) {
    Look look = lookOf(style);
    look.surface = makeRgb(30, 60, 220);
    look.light.direction = {0, 0, 100};
    // Beside the middle, where a highlight would be white.
    const Color color = colorAt(draw(ball(0.9F, {0.8F, 0.1F, 0.1F}), look), centerX + 22, centerY + 18);
    EXPECT_GT(color.blue, color.red + 60) << style;
  }
}

TEST(Effects, linesTakeTheirColor) {
  Look look = lookOf("Ink Outline");
  look.line = makeRgb(230, 10, 10);
  look.lineThickness = 300;
  const Picture picture = draw(box({0.5F, 0.5F, 0.5F}, grey), look);
  bool found = false;
  for (int x = 0; x < centerX; ++x) found |= colorAt(picture, x, centerY) == colorOf(*look.line);
  EXPECT_TRUE(found);
}

TEST(Effects, surfacesShowTheirColorOnADarkGroundToo) {
  for (const LookStyle& style : lookStyles()) {
    if (!style.usesSurface()) continue;
    Look look = lookOf("Shaded");
    look.style = &style;
    look.surface = makeRgb(30, 200, 60);
    look.line = look.background = makeRgb(24, 20, 64);
    look.light.direction = {0, 0, 100};
    const Picture picture = draw(ball(0.9F, grey), look);
    int green = 0, blue = 0;
    for (int x = centerX + 10; x < centerX + 30; ++x) {
      green += colorAt(picture, x, centerY + 18).green;
      blue += colorAt(picture, x, centerY + 18).blue;
    }
    EXPECT_GT(green, blue + 20 * 30) << style.name;
  }
}

TEST(Effects, everyStyleWithLinesDrawsThemInTheirColor) {
  for (const LookStyle& style : lookStyles()) {
    Look look = lookOf("Shaded");
    look.style = &style;
    const auto reddest = [&] {
      const Picture picture = draw(box({0.5F, 0.5F, 0.5F}, grey), look);
      int most = -255;
      for (int x = 0; x < centerX; ++x) {
        const Color color = colorAt(picture, x, centerY);
        most = std::max(most, color.red - std::max(color.green, color.blue));
      }
      return most;
    };
    look.surface = makeRgb(120, 120, 120);
    look.background = makeRgb(40, 40, 40);
    look.lineThickness = 300;
    look.line = makeRgb(240, 0, 0);
    if (style.usesLines()) {
      EXPECT_GT(reddest(), 150) << style.name;
    } else {
      EXPECT_LT(reddest(), 60) << style.name;
    }
  }
}

/// How much of the picture changed, in whole pixels from black to white.
double changeOf(const Picture& a, const Picture& b) {
  double sum = 0;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) sum += std::fabs(brightnessAt(a, x, y) - brightnessAt(b, x, y));
  }
  return sum / 255;
}

TEST(Effects, thickerLinesCoverMore) {
  const Mesh mesh = box({0.5F, 0.5F, 0.5F}, grey);
  for (const char* style : {"Ink Outline", "Wireframe", "Flat Cartoon", "Comic Halftone", "Watercolour",
                            "Pencil Sketch", "Chalk on Board", "Hidden Line", "Blueprint"}) {
    Look look = lookOf(style);
    const Picture plain = draw(mesh, look);
    const auto changeAt = [&](int thickness) {
      look.lineThickness = thickness;
      return changeOf(draw(mesh, look), plain);
    };
    EXPECT_GT(changeAt(50), 5) << style;
    const double atDouble = changeAt(200), atTriple = changeAt(300);
    EXPECT_GT(atDouble, 10) << style;
    EXPECT_GT(atTriple, atDouble * 1.3) << style;
  }
}

/// On average, so that single grains do not count.
double brightnessAround(const Picture& picture, int x, int y) {
  constexpr int reach = 4;
  double sum = 0;
  for (int down = -reach; down <= reach; ++down) {
    for (int right = -reach; right <= reach; ++right) sum += brightnessAt(picture, x + right, y + down);
  }
  return sum / ((2 * reach + 1) * (2 * reach + 1));
}

TEST(Effects, theLitSideIsWhereTheLampIs) {
  struct Case {
    Vec3 lamp;
    int brightX, brightY;
  };
  for (const char* style : {"Basic Draw", "Shaded", "Clay", "Comic Halftone", "Watercolour", "Chalk on Board"}) {
    Look look = lookOf(style);
    for (const Case& c : {Case{{-100, 0, 0}, -30, 0}, Case{{100, 0, 0}, 30, 0}, Case{{0, -100, 0}, 0, -30},
                          Case{{0, 100, 0}, 0, 30}, Case{{-100, -100, 50}, -20, -20}}) {
      look.light.direction = c.lamp;
      const Picture picture = draw(ball(0.9F, grey), look);
      const double lit = brightnessAround(picture, centerX + c.brightX, centerY + c.brightY);
      EXPECT_GT(lit, brightnessAround(picture, centerX - c.brightX, centerY - c.brightY) + 25)
          << style << ", lamp at " << c.lamp.x << " " << c.lamp.y << " " << c.lamp.z;
    }
  }
}

TEST(Effects, switchingTheLightOffDarkens) {
  for (const char* style : {"Basic Draw", "Shaded", "Clay", "Flat Cartoon", "Comic Halftone", "Watercolour",
                            "Pencil Sketch", "Chalk on Board"}) {
    Look look = lookOf(style);
    const double lit = drawnPart(draw(ball(0.9F, grey), look)).brightness;
    look.light.on = false;
    EXPECT_LT(drawnPart(draw(ball(0.9F, grey), look)).brightness, lit - 10) << style;
  }
}

TEST(Effects, aCutOutDoesNotTakeTheLight) {
  Look look = lookOf("Hidden Line");
  const Picture lit = draw(ball(0.9F, grey), look);
  look.light.on = false;
  EXPECT_EQ(differences(lit, draw(ball(0.9F, grey), look), 0), 0);
}

TEST(Effects, theSunOfASilhouetteStandsWhereTheLampIs) {
  Look look = lookOf("Silhouette");
  const auto sunAt = [&](Vec3 lamp) {
    look.light.direction = lamp;
    return draw({}, look);
  };
  constexpr int away = 37;  // pixels from the middle to a sun at the side
  EXPECT_GT(brightnessAt(sunAt({-100, 0, 0}), centerX - away, centerY), 230);
  EXPECT_GT(brightnessAt(sunAt({0, 100, 0}), centerX, centerY + away), 230);
  EXPECT_GT(brightnessAt(sunAt({0, 0, 100}), centerX, centerY), 230);
  look.light.on = false;
  EXPECT_LT(brightnessAt(draw({}, look), centerX, centerY), 130);
}

TEST(Effects, aLampWithoutDirectionIsHarmless) {
  Look look = lookOf("Shaded");
  look.light.direction = {};
  const Picture picture = draw(ball(0.9F, grey), look);
  EXPECT_GT(drawnPart(picture).count, 1000);
}

TEST(Effects, nearerSurfacesHideFartherOnes) {
  Mesh mesh = ball(0.3F, {0, 0.8F, 0});
  append(mesh, box({0.4F, 0.4F, 0.05F}, {0.8F, 0, 0}), {0, 0, 0.5F});
  findEdges(mesh);
  const Color front = colorAt(draw(mesh, lookOf("Shaded")), centerX, centerY);
  EXPECT_GT(front.red, front.green + 60);
  const Mat3 fromBehind{{-1, 0, 0}, {0, 1, 0}, {0, 0, -1}};
  const Color back = colorAt(draw(mesh, lookOf("Shaded"), {fromBehind}), centerX, centerY);
  EXPECT_GT(back.green, back.red + 60);
}

TEST(Effects, hiddenEdgesStayHiddenUnlessTheStyleShowsThem) {
  Mesh mesh = box({0.2F, 0.2F, 0.2F}, grey);
  append(mesh, box({0.6F, 0.6F, 0.05F}, {1, 1, 1}), {0, 0, 0.5F});
  findEdges(mesh);
  Look look = lookOf("Ink Outline");
  look.light.direction = {0, 0, 100};
  const Picture ink = draw(mesh, look);
  const Color middle = colorAt(ink, centerX, centerY);
  for (int x = centerX - 20; x <= centerX + 20; ++x) EXPECT_EQ(colorAt(ink, x, centerY), middle) << x;
  const Picture wires = draw(mesh, lookOf("Wireframe"));
  long marks = 0;
  for (int x = centerX - 20; x <= centerX + 20; ++x) marks += colorAt(wires, x, centerY) != Color{255, 255, 255};
  EXPECT_GT(marks, 0);
}

TEST(Effects, hiddenEdgesCanBeDashed) {
  Mesh mesh = box({0.05F, 0.3F, 0.05F}, grey);
  append(mesh, box({0.6F, 0.6F, 0.05F}, {1, 1, 1}), {0, 0, 0.5F});
  findEdges(mesh);
  const Look look = lookOf("Hidden Line");
  const Picture picture = draw(mesh, look);
  const Color board = colorOf(look.style->surface);
  // Along the thin box's left edge behind the board: marks and gaps take turns.
  int changes = 0;
  bool marked = false;
  for (int y = centerY - 12; y <= centerY + 12; ++y) {
    bool mark = false;
    for (int x = centerX - 6; x < centerX; ++x) mark |= colorAt(picture, x, y) != board;
    changes += mark != marked;
    marked = mark;
  }
  EXPECT_GE(changes, 6);
}

TEST(Effects, edgesAreSmooth) {
  const Mat3 tilted{{0.96F, 0.28F, 0}, {-0.28F, 0.96F, 0}, {0, 0, 1}};
  Look look = lookOf("Ink Outline");
  look.surface = makeRgb(0, 0, 0);
  look.line = makeRgb(0, 0, 0);
  for (const char* style : {"Ink Outline", "Basic Draw"}) {
    look.style = findLookStyle(style);
    const Picture picture = draw(box({0.5F, 0.5F, 0.5F}, grey), look, {tilted});
    long between = 0;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const double brightness = brightnessAt(picture, x, y);
        between += brightness > 20 && brightness < 235;
      }
    }
    EXPECT_GT(between, 100) << style;
  }
}

TEST(Effects, verticesAndTexturesColorASurface) {
  Mesh mesh = box({0.6F, 0.6F, 0.6F}, {1, 1, 1});
  mesh.textureCoordinates.assign(mesh.positions.size(), {0.25F, 0.5F});
  mesh.materials[0].texture = std::make_shared<const Texture>(Texture{2, 1, {{0, 0.7F, 0}, {0.7F, 0, 0}}});
  const Color textured = colorAt(draw(mesh, lookOf("Basic Draw")), centerX, centerY);
  EXPECT_GT(textured.green, textured.red + 60);
  mesh.materials[0].texture = nullptr;
  mesh.colors.assign(mesh.positions.size(), {0, 0, 0.8F});
  const Color painted = colorAt(draw(mesh, lookOf("Basic Draw")), centerX, centerY);
  EXPECT_GT(painted.blue, painted.green + 60);
}

TEST(Effects, oddSizesAndExtremeViewsAreDrawn) {
  Renderer renderer;
  const Mesh mesh = stillLife();
  for (const auto& [w, h] : {std::pair{1, 1}, {2, 300}, {301, 3}, {97, 64}}) {
    for (const LookStyle& style : lookStyles()) {
      Look look = lookOf("Shaded");
      look.style = &style;
      for (const float scale : {0.01F, 1.0F, 20.0F}) {
        Picture picture(w, h);
        renderer.draw(mesh, {{}, scale, 2, -2}, look, picture);
        renderer.draw(mesh, {{}, scale, 0, 0}, look, picture);
        EXPECT_EQ(picture.pixels.size(), static_cast<std::size_t>(w) * static_cast<std::size_t>(h));
        EXPECT_EQ(picture.pixels.back() >> 24U, 255U);
      }
    }
  }
  Picture none;
  renderer.draw(mesh, {}, lookOf("Shaded"), none);
  EXPECT_TRUE(none.pixels.empty());
}

TEST(Effects, aSecondDrawingKeepsNothingOfTheFirst) {
  Renderer renderer;
  const Look look = lookOf("Ink Outline");
  Picture first(width, height), second(width, height);
  renderer.draw(stillLife(), {}, look, first);
  renderer.draw(stillLife(), {{}, 0.3F, 0.5F, 0.2F}, look, first);
  Renderer().draw(stillLife(), {{}, 0.3F, 0.5F, 0.2F}, look, second);
  EXPECT_EQ(first.pixels, second.pixels);
}

}  // namespace
}  // namespace nerida

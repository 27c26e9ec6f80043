#include "host/render/style.h"

#include <algorithm>
#include <array>

namespace nerida {
namespace {

constexpr Rgb white = makeRgb(255, 255, 255);
constexpr Rgb black = makeRgb(20, 20, 24);
constexpr Rgb clay = makeRgb(200, 204, 212);

constexpr LookStyle plainStyle{.name = "Basic Draw",
                               .shading = Shading::facets,
                               .lines = {},
                               .surface = clay,
                               .line = black,
                               .background = white,
                               .ownColors = true};

constexpr std::array styles{
    LookStyle{.name = "Shaded",
              .shading = Shading::smooth,
              .lines = {},
              .surface = clay,
              .line = black,
              .background = white,
              .ownColors = true},
    LookStyle{.name = "Flat Cartoon",
              .shading = Shading::cartoon,
              .lines = {.contours = true, .creases = true, .width = 1.4F, .contourBoost = 1.9F},
              .surface = makeRgb(255, 196, 64),
              .line = makeRgb(36, 28, 44),
              .background = makeRgb(232, 244, 252),
              .ownColors = true},
    LookStyle{.name = "Ink Outline",
              .shading = Shading::paper,
              .lines = {.contours = true, .creases = true, .width = 1.5F, .contourBoost = 1.9F},
              .surface = white,
              .line = black,
              .background = white,
              .ownColors = false},
    LookStyle{.name = "Pencil Sketch",
              .shading = Shading::pencil,
              .lines = {.contours = true, .creases = true, .width = 1.2F, .contourBoost = 1.3F, .wobble = 1},
              .surface = makeRgb(190, 190, 190),
              .line = makeRgb(62, 60, 64),
              .background = makeRgb(250, 247, 238),
              .ownColors = true},
    LookStyle{.name = "Blueprint",
              .shading = Shading::blueprint,
              .lines = {.contours = true, .creases = true, .width = 1.2F, .contourBoost = 1.4F, .hiddenOpacity = 0.22F},
              .surface = makeRgb(38, 88, 160),
              .line = makeRgb(226, 240, 255),
              .background = makeRgb(22, 62, 124),
              .ownColors = false},
    LookStyle{
        .name = "Wireframe",
        .shading = Shading::none,
        .lines = {.contours = true, .everyEdge = true, .width = 0.9F, .contourBoost = 1.5F, .hiddenOpacity = 0.16F},
        .surface = white,
        .line = makeRgb(24, 60, 132),
        .background = white,
        .ownColors = false},
};

}  // namespace

const LookStyle& basicDraw() { return plainStyle; }

std::span<const LookStyle> lookStyles() { return styles; }

const LookStyle* findLookStyle(std::string_view name) {
  if (name == plainStyle.name) return &plainStyle;
  const auto* found = std::find_if(styles.begin(), styles.end(), [&](const LookStyle& s) { return s.name == name; });
  return found == styles.end() ? nullptr : found;
}

}  // namespace nerida

#include "host/render/style.h"

#include <algorithm>
#include <array>

namespace nerida {
namespace {

constexpr PackedRgb white = makeRgb(255, 255, 255);
constexpr PackedRgb black = makeRgb(20, 20, 24);
constexpr PackedRgb clay = makeRgb(200, 204, 212);

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
    LookStyle{.name = "Clay",
              .shading = Shading::clay,
              .lines = {},
              .surface = makeRgb(212, 138, 106),
              .line = makeRgb(92, 48, 32),
              .background = makeRgb(226, 214, 200),
              .ownColors = false},
    LookStyle{.name = "Flat Cartoon",
              .shading = Shading::cartoon,
              .lines = {.contours = true, .creases = true, .width = 1.4F, .contourBoost = 1.9F},
              .surface = makeRgb(255, 196, 64),
              .line = makeRgb(36, 28, 44),
              .background = makeRgb(232, 244, 252),
              .ownColors = true},
    LookStyle{.name = "Comic Halftone",
              .shading = Shading::halftone,
              .lines = {.contours = true, .creases = true, .width = 1.6F, .contourBoost = 2.2F},
              .surface = makeRgb(232, 64, 56),
              .line = makeRgb(16, 12, 20),
              .background = makeRgb(255, 222, 84),
              .ownColors = true},
    LookStyle{
        .name = "Watercolour",
        .shading = Shading::watercolor,
        .lines =
            {.contours = true, .creases = true, .width = 0.8F, .contourBoost = 1.2F, .wobble = 0.8F, .grain = 0.5F},
        .surface = makeRgb(96, 150, 200),
        .line = makeRgb(92, 76, 72),
        .background = makeRgb(254, 252, 246),
        .ownColors = true},
    LookStyle{
        .name = "Pencil Sketch",
        .shading = Shading::pencil,
        .lines = {.contours = true, .creases = true, .width = 1.2F, .contourBoost = 1.3F, .wobble = 1, .grain = 0.45F},
        .surface = makeRgb(190, 190, 190),
        .line = makeRgb(62, 60, 64),
        .background = makeRgb(250, 247, 238),
        .ownColors = true},
    LookStyle{
        .name = "Chalk on Board",
        .shading = Shading::chalk,
        .lines =
            {.contours = true, .creases = true, .width = 1.6F, .contourBoost = 1.5F, .wobble = 0.9F, .grain = 0.75F},
        .surface = makeRgb(240, 236, 220),
        .line = makeRgb(246, 244, 234),
        .background = makeRgb(42, 68, 58),
        .ownColors = true},
    LookStyle{.name = "Ink Outline",
              .shading = Shading::paper,
              .lines = {.contours = true, .creases = true, .width = 1.5F, .contourBoost = 1.9F},
              .surface = white,
              .line = black,
              .background = white,
              .ownColors = false},
    LookStyle{.name = "Hidden Line",
              .shading = Shading::flat,
              .lines = {.contours = true,
                        .creases = true,
                        .width = 0.9F,
                        .contourBoost = 1.7F,
                        .hiddenOpacity = 0.45F,
                        .hiddenDash = 4},
              .surface = white,
              .line = makeRgb(44, 52, 64),
              .background = makeRgb(226, 228, 224),
              .ownColors = false},
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
    LookStyle{.name = "Silhouette",
              .shading = Shading::silhouette,
              .lines = {},
              .surface = makeRgb(38, 26, 48),
              .line = black,
              .background = makeRgb(238, 120, 72),
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

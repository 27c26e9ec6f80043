#pragma once

#include <span>
#include <string_view>

#include "host/render/color.h"

namespace nerida {

/// How the surfaces are filled.
enum class Shading {
  none,        ///< background shows through; surfaces still hide what lies behind them
  flat,        ///< one even tone, as cut out of paper
  facets,      ///< one tone for each facet, matte
  smooth,      ///< soft light with a highlight
  clay,        ///< matte and warm, before a studio's backdrop
  silhouette,  ///< dark against a low sun
  paper,       ///< surface colour with a hint of shade
  cartoon,     ///< a few flat tones
  halftone,    ///< tones out of dots
  blueprint,   ///< grid, faint glow at the rims
  pencil,      ///< hatching on paper grain
  chalk,       ///< broad strokes on a wiped board
  watercolor,  ///< washes that dry darkest at their borders
};

/// Which lines are drawn.
struct Lines {
  bool contours = false;
  bool creases = false;
  bool everyEdge = false;
  float width = 1.5F;         ///< pixels of a 480 pixel high picture at 100 % thickness
  float contourBoost = 1.0F;  ///< contours are this much thicker than the rest
  float hiddenOpacity = 0;    ///< 0 = hidden lines are not drawn
  float hiddenDash = 0;       ///< pixels of a 480 pixel high picture; 0 = hidden lines are not broken
  float wobble = 0;           ///< 0 = drawn with a ruler, 1 = by hand
  float grain = 0;            ///< how much of a line the valleys of the paper do not take
};

/// A named way of drawing. A new style is one more row of the table in style.cpp.
struct LookStyle {
  std::string_view name;
  Shading shading;
  Lines lines;
  PackedRgb surface;
  PackedRgb line;
  PackedRgb background;
  bool ownColors;  ///< while the surface colour is the default, the model's own materials show

  [[nodiscard]] constexpr bool usesLines() const { return lines.contours || lines.creases || lines.everyEdge; }
  [[nodiscard]] constexpr bool usesSurface() const { return shading != Shading::none; }
};

/// The plain style that every model has; not part of `lookStyles()`.
const LookStyle& basicDraw();

/// The styles that a user can choose from, in the order in which they are offered.
std::span<const LookStyle> lookStyles();

/// By exact name, "Basic Draw" included; nullptr when there is none of that name.
const LookStyle* findLookStyle(std::string_view name);

}  // namespace nerida

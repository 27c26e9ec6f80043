#include "popups/animation_drawing.h"

#include <algorithm>
#include <span>

namespace nerida {
namespace {

constexpr SystemColor face = SystemColor::buttonFace;
constexpr SystemColor shadow = SystemColor::buttonShadow;
constexpr SystemColor highlight = SystemColor::buttonHighlight;

// Glyphs are drawn on a grid of this many steps to the side of their box.
constexpr std::int32_t gridSteps = 24;

void drawEdge(Canvas& canvas, const DrawnBox& box, SystemColor topLeft, SystemColor bottomRight) {
  const Twips right{box.width - box.pixelX};
  const Twips bottom{box.height - box.pixelY};
  canvas.line({0}, {0}, right, {0}, topLeft);
  canvas.line({0}, {0}, {0}, bottom, topLeft);
  canvas.line(right, {0}, right, bottom, bottomRight);
  canvas.line({0}, bottom, right, bottom, bottomRight);
}

// A triangle that points to the right, as upright lines that get shorter.
void drawPlayGlyph(Canvas& canvas, const DrawnBox& box, std::int32_t sunkX, std::int32_t sunkY, Rgb color) {
  const std::int32_t left = box.width * 9 / gridSteps;
  const std::int32_t right = box.width * 17 / gridSteps;
  const std::int32_t half = box.height * 7 / gridSteps;
  const std::int32_t middle = box.height / 2;
  for (std::int32_t x = left; x <= right; x += box.pixelX) {
    const std::int32_t reach = half * (right - x) / (right - left);
    canvas.line({x + sunkX}, {middle - reach + sunkY}, {x + sunkX}, {middle + reach + sunkY}, color);
  }
}

void drawPauseGlyph(Canvas& canvas, const DrawnBox& box, std::int32_t sunkX, std::int32_t sunkY, Rgb color) {
  const std::int32_t top = box.height * 6 / gridSteps;
  const std::int32_t bottom = box.height * 18 / gridSteps;
  const std::int32_t width = box.width * 3 / gridSteps;
  for (const std::int32_t start : {box.width * 7 / gridSteps, box.width * 14 / gridSteps}) {
    for (std::int32_t x = start; x <= start + width; x += box.pixelX) {
      canvas.line({x + sunkX}, {top + sunkY}, {x + sunkX}, {bottom + sunkY}, color);
    }
  }
}

struct Segment {
  std::int32_t x1, y1, x2, y2;
};

constexpr Segment firstFrame[] = {{7, 6, 7, 18}, {16, 6, 10, 12}, {10, 12, 16, 18}, {16, 18, 16, 6}};
constexpr Segment previousFrame[] = {{15, 6, 9, 12}, {9, 12, 15, 18}, {15, 18, 15, 6}};
constexpr Segment nextFrame[] = {{9, 6, 15, 12}, {15, 12, 9, 18}, {9, 18, 9, 6}};
constexpr Segment lastFrame[] = {{17, 6, 17, 18}, {8, 6, 14, 12}, {14, 12, 8, 18}, {8, 18, 8, 6}};
constexpr std::span<const Segment> placeholderGlyphs[] = {firstFrame, previousFrame, nextFrame, lastFrame};

void drawSegments(Canvas& canvas, const DrawnBox& box, std::span<const Segment> segments, int pixels,
                  SystemColor color) {
  const auto across = [&](std::int32_t x) { return Twips{box.width * x / gridSteps + pixels * box.pixelX}; };
  const auto down = [&](std::int32_t y) { return Twips{box.height * y / gridSteps + pixels * box.pixelY}; };
  for (const Segment& s : segments) canvas.line(across(s.x1), down(s.y1), across(s.x2), down(s.y2), color);
}

DrawnBox withRealPixels(DrawnBox box) {
  box.pixelX = std::max(box.pixelX, 1);
  box.pixelY = std::max(box.pixelY, 1);
  return box;
}

}  // namespace

void paintPlayPause(Canvas& canvas, DrawnBox box, const PlayPauseLook& look) {
  box = withRealPixels(box);
  if (look.pressed) {
    drawEdge(canvas, box, shadow, highlight);
  } else if (look.hot) {
    drawEdge(canvas, box, highlight, shadow);
  }
  // What is down has sunk in by a pixel, with all that is on it.
  const std::int32_t sunkX = look.pressed ? box.pixelX : 0;
  const std::int32_t sunkY = look.pressed ? box.pixelY : 0;
  const auto drawGlyph = look.playing ? drawPauseGlyph : drawPlayGlyph;
  drawGlyph(canvas, box, sunkX, sunkY, look.glyphColor);
  if (look.focused) {
    canvas.focusBox({2 * box.pixelX}, {2 * box.pixelY}, {box.width - 3 * box.pixelX}, {box.height - 3 * box.pixelY});
  }
}

void paintFramePlaceholder(Canvas& canvas, DrawnBox box, int index) {
  box = withRealPixels(box);
  for (std::int32_t y = 0; y < box.height; y += box.pixelY) canvas.line({0}, {y}, {box.width}, {y}, face);
  // All highlights first: a stroke must not be cut by the twin of its neighbour.
  const std::span<const Segment> glyph = placeholderGlyphs[index];
  drawSegments(canvas, box, glyph, 1, highlight);
  drawSegments(canvas, box, glyph, 0, shadow);
}

}  // namespace nerida

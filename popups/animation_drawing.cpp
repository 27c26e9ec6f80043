#include "popups/animation_drawing.h"

#include <algorithm>

namespace nerida {
namespace {

constexpr SystemColor face = SystemColor::buttonFace;
constexpr SystemColor shadow = SystemColor::buttonShadow;
constexpr SystemColor highlight = SystemColor::buttonHighlight;

// A box in whole pixels. Glyphs are laid out in these: strokes that are rounded one by one get ragged.
class PixelBox {
 public:
  PixelBox(Canvas& canvas, const DrawnBox& box) : canvas(canvas), box(box) {}

  int columns() const { return box.width / box.pixelX; }
  int rows() const { return box.height / box.pixelY; }
  int middle() const { return (rows() - 1) / 2; }
  int side(int of25) const { return rows() * of25 / 25; }  // a length that is given for a box of 25 rows

  // Twice, because the size of a pixel in twips is rounded: where it is too large, every few columns one is missed.
  template <class Color>
  void column(int x, int top, int bottom, Color color) {
    for (const std::int32_t nudge : {0, (box.pixelX - 1) / 2}) {
      const Twips at{x * box.pixelX + nudge};
      canvas.line(at, {top * box.pixelY}, at, {bottom * box.pixelY}, color);
    }
  }

 private:
  Canvas& canvas;
  const DrawnBox& box;
};

void drawEdge(Canvas& canvas, const DrawnBox& box, SystemColor topLeft, SystemColor bottomRight) {
  const Twips right{box.width - box.pixelX};
  const Twips bottom{box.height - box.pixelY};
  canvas.line({0}, {0}, right, {0}, topLeft);
  canvas.line({0}, {0}, {0}, bottom, topLeft);
  canvas.line(right, {0}, right, bottom, bottomRight);
  canvas.line({0}, bottom, right, bottom, bottomRight);
}

struct Offset {
  int x;
  int y;
};

template <class Color>
void drawBar(PixelBox& box, int left, int width, int half, Offset by, Color color) {
  for (int x = left; x < left + width; ++x) {
    box.column(x + by.x, box.middle() - half + by.y, box.middle() + half + by.y, color);
  }
}

// From its upright side at a column to its tip, half as wide as high: the slopes are straight at every size.
template <class Color>
void drawTriangle(PixelBox& box, int base, int direction, int half, Offset by, Color color) {
  for (int i = 0; i <= half; ++i) {
    const int reach = half - i;
    box.column(base + direction * i + by.x, box.middle() - reach + by.y, box.middle() + reach + by.y, color);
  }
}

template <class Color>
void drawPlayGlyph(PixelBox& box, Offset by, Color color) {
  const int half = box.side(7);
  drawTriangle(box, (box.columns() - half) / 2, 1, half, by, color);
}

template <class Color>
void drawPauseGlyph(PixelBox& box, Offset by, Color color) {
  const int width = box.side(4);
  const int gap = width - (box.columns() - width) % 2;  // so that the same room is left on both sides
  const int left = (box.columns() - 2 * width - gap) / 2;
  drawBar(box, left, width, box.side(6), by, color);
  drawBar(box, left + width + gap, width, box.side(6), by, color);
}

template <class Color>
void drawGlyph(PixelBox& box, bool playing, Offset by, Color color) {
  playing ? drawPauseGlyph(box, by, color) : drawPlayGlyph(box, by, color);
}

// A step button's drawing: a triangle and the bar from which or to which it leads.
struct StepGlyph {
  int direction;
  bool barFirst;
};

constexpr StepGlyph stepGlyphs[] = {{-1, true}, {-1, false}, {1, true}, {1, false}};

void drawStepGlyph(PixelBox& box, const StepGlyph& glyph, Offset by, SystemColor color) {
  const int half = box.side(7);
  const int bar = box.side(3);
  const int gap = box.side(2);
  const int left = (box.columns() - (bar + gap + half + 1)) / 2;
  const int triangle = glyph.barFirst ? left + bar + gap : left;
  drawBar(box, glyph.barFirst ? left : left + half + 1 + gap, bar, half, by, color);
  drawTriangle(box, glyph.direction > 0 ? triangle : triangle + half, glyph.direction, half, by, color);
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
  const Offset sunk = look.pressed ? Offset{1, 1} : Offset{0, 0};
  PixelBox pixels(canvas, box);
  // On a dark desktop the light outline is what the glyph is seen by.
  for (const Offset side : {Offset{-1, 0}, {1, 0}, {0, -1}, {0, 1}}) {
    drawGlyph(pixels, look.playing, {sunk.x + side.x, sunk.y + side.y}, highlight);
  }
  drawGlyph(pixels, look.playing, sunk, look.glyphColor);
  if (look.focused) {
    canvas.focusBox({2 * box.pixelX}, {2 * box.pixelY}, {box.width - 3 * box.pixelX}, {box.height - 3 * box.pixelY});
  }
}

void paintFramePlaceholder(Canvas& canvas, DrawnBox box, int index) {
  box = withRealPixels(box);
  for (std::int32_t y = 0; y < box.height; y += box.pixelY) canvas.line({0}, {y}, {box.width}, {y}, face);
  // The highlight first: it is what the shadow leaves of it.
  PixelBox pixels(canvas, box);
  drawStepGlyph(pixels, stepGlyphs[index], {1, 1}, highlight);
  drawStepGlyph(pixels, stepGlyphs[index], {0, 0}, shadow);
}

}  // namespace nerida

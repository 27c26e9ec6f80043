#include "toolbar/swatches.h"

#include <span>

namespace nerida {
namespace {

constexpr SystemColor shadow = SystemColor::buttonShadow;
constexpr SystemColor highlight = SystemColor::buttonHighlight;

struct Segment {
  std::int32_t x1, y1, x2, y2;
};

void drawSegments(Canvas& canvas, std::span<const Segment> segments, std::int32_t offset, SystemColor color) {
  for (const Segment& s : segments) {
    canvas.line({s.x1 + offset}, {s.y1 + offset}, {s.x2 + offset}, {s.y2 + offset}, color);
  }
}

// All highlights first: a glyph's strokes must not be cut by the twins of their neighbours.
void etch(Canvas& canvas, std::span<const Segment> segments) {
  drawSegments(canvas, segments, 15, highlight);
  drawSegments(canvas, segments, 0, shadow);
}

// A tilted bucket with its handle, and the paint that runs out of it.
constexpr Segment bucket[] = {
    {135, 75, 255, 195},  {255, 195, 150, 270}, {150, 270, 60, 180},  {60, 180, 135, 75},    // body
    {135, 75, 120, 45},   {120, 45, 135, 30},   {135, 30, 165, 30},   {165, 30, 180, 45},    // handle
    {180, 45, 180, 120},  {90, 150, 225, 150},                                               // handle foot, paint level
    {255, 195, 285, 210}, {285, 210, 300, 240}, {300, 240, 300, 285}, {300, 285, 285, 300},  // paint
    {285, 300, 270, 285}, {270, 285, 270, 240}, {270, 240, 255, 195}, {30, 300, 45, 300},
    {60, 300, 75, 300},   {90, 300, 105, 300},  {120, 300, 135, 300},  // floor
    {150, 300, 165, 300}, {180, 300, 195, 300}, {210, 300, 225, 300},
};

// A pencil that has drawn a line.
constexpr Segment pencil[] = {
    {60, 240, 75, 180},   {75, 180, 210, 45},   {210, 45, 225, 45},   {225, 45, 255, 75},  {255, 75, 255, 90},
    {255, 90, 120, 225},  {120, 225, 60, 240},  {75, 180, 120, 225},  {180, 75, 225, 120}, {45, 285, 105, 270},
    {105, 270, 165, 285}, {165, 285, 225, 270}, {225, 270, 285, 285},
};

// A strip of film with its perforation, and a play triangle in the frame.
constexpr Segment film[] = {
    {60, 60, 300, 60},    {300, 60, 300, 270},  {300, 270, 60, 270},  {60, 270, 60, 60},    {60, 105, 300, 105},
    {60, 225, 300, 225},  {90, 75, 90, 90},     {135, 75, 135, 90},   {180, 75, 180, 90},   {225, 75, 225, 90},
    {270, 75, 270, 90},   {90, 240, 90, 255},   {135, 240, 135, 255}, {180, 240, 180, 255}, {225, 240, 225, 255},
    {270, 240, 270, 255}, {150, 120, 150, 210}, {150, 120, 225, 165}, {225, 165, 150, 210},
};

}  // namespace

void paintSurfaceSwatch(Canvas& canvas) { etch(canvas, bucket); }

void paintLineSwatch(Canvas& canvas) { etch(canvas, pencil); }

void paintLineThicknessSwatch(Canvas& canvas) {
  canvas.line({60}, {90}, {285}, {90}, shadow);
  canvas.line({75}, {105}, {300}, {105}, highlight);
  canvas.box({75}, {150}, {285}, {165}, highlight);
  canvas.box({60}, {135}, {270}, {150}, shadow);
  canvas.box({75}, {210}, {285}, {255}, highlight);
  canvas.filledBox({60}, {195}, {270}, {240}, shadow);
}

void paintAnimationIndicator(Canvas& canvas) { etch(canvas, film); }

}  // namespace nerida

#include "host/render/stroke.h"

namespace nerida {
namespace {

/// A straight line with its reach: half its width and the pixel in which it fades out.
class Capsule {
 public:
  Capsule(Vec2 start, Vec2 end, float width)
      : from(start), run{end.x - start.x, end.y - start.y}, half(width / 2), reach(half + 0.5F) {
    const float square = run.x * run.x + run.y * run.y;
    inverseSquare = square > 0 ? 1 / square : 0;
  }

  [[nodiscard]] float top() const { return std::min(from.y, from.y + run.y) - reach; }
  [[nodiscard]] float bottom() const { return std::max(from.y, from.y + run.y) + reach; }

  /// The columns that the row can touch.
  void columns(float y, float& left, float& right) const {
    float first = 0, last = 1;
    if (std::fabs(run.y) > 0.001F) {
      first = std::clamp((y - reach - from.y) / run.y, 0.0F, 1.0F);
      last = std::clamp((y + reach - from.y) / run.y, 0.0F, 1.0F);
    }
    const float a = from.x + run.x * first, b = from.x + run.x * last;
    left = std::min(a, b) - reach;
    right = std::max(a, b) + reach;
  }

  /// How far the line covers the pixel around that point.
  [[nodiscard]] float coverage(float x, float y) const {
    const float dx = x - from.x, dy = y - from.y;
    const float along = std::clamp((dx * run.x + dy * run.y) * inverseSquare, 0.0F, 1.0F);
    const float awayX = dx - run.x * along, awayY = dy - run.y * along;
    const float square = awayX * awayX + awayY * awayY;
    if (square >= reach * reach) return 0;
    return std::min(1.0F, std::min(reach - std::sqrt(square), 2 * half));
  }

 private:
  Vec2 from, run;
  float half, reach;
  float inverseSquare;
};

int clampedPixel(float at, int size) { return static_cast<int>(std::clamp(at, 0.0F, static_cast<float>(size))); }

}  // namespace

void stroke(Frame& frame, Vec2 from, Vec2 to, Pen pen) {
  const Capsule line(from, to, pen.width);
  const int first = clampedPixel(line.top(), frame.height), last = clampedPixel(line.bottom() + 1, frame.height);
  for (int row = first; row < last; ++row) {
    const float y = static_cast<float>(row) + 0.5F;
    float left = 0, right = 0;
    line.columns(y, left, right);
    const int begin = clampedPixel(left, frame.width), end = clampedPixel(right + 1, frame.width);
    float* ink = frame.ink.data() + frame.at(begin, row);
    for (int x = begin; x < end; ++x, ++ink) {
      *ink = std::max(*ink, line.coverage(static_cast<float>(x) + 0.5F, y) * pen.opacity);
    }
  }
}

}  // namespace nerida

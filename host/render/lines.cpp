#include "host/render/noise.h"
#include "host/render/stroke.h"
#include "host/render/tone.h"

namespace nerida {
namespace {

constexpr float wobbleReach = 3.0F;  // pixels of a 480 pixel high picture
constexpr float handPiece = 10.0F;   // a line by hand changes its mind after so many pixels

/// A point of a line: in the picture, with its depth.
struct LinePoint {
  Vec2 at;
  float depth;
};

LinePoint between(const ScreenVertex& a, const ScreenVertex& b, float t) {
  return {{a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t}, a.depth + (b.depth - a.depth) * t};
}

class LineDrawer {
 public:
  LineDrawer(const Mesh& drawnMesh, const Look& look, Frame& drawnFrame)
      : mesh(drawnMesh),
        lines(look.style->lines),
        frame(drawnFrame),
        width(lines.width * frame.unit * static_cast<float>(look.lineThickness) / 100.0F) {}

  /// How far outside the model's box a line can reach.
  [[nodiscard]] int margin() const {
    return static_cast<int>(width * std::max(1.0F, lines.contourBoost) + wobbleReach * lines.wobble * frame.unit) + 2;
  }

  void draw() {
    for (const Edge& edge : mesh.edges) {
      const float thickness = thicknessOf(edge);
      if (thickness > 0) trace(frame.vertices[edge.from], frame.vertices[edge.to], thickness);
    }
  }

 private:
  [[nodiscard]] bool isFront(std::uint32_t face) const { return frame.areas[face] > 0; }
  [[nodiscard]] bool isShown(std::uint32_t face) const {
    return isFront(face) || mesh.materials[mesh.triangles[face].material].doubleSided;
  }

  [[nodiscard]] bool isContour(const Edge& edge) const {
    if (edge.secondFace == Edge::none) return isShown(edge.firstFace);
    return isFront(edge.firstFace) != isFront(edge.secondFace);
  }

  /// 0 = not drawn in this style or from this side.
  [[nodiscard]] float thicknessOf(const Edge& edge) const {
    if (lines.contours && isContour(edge)) return width * lines.contourBoost;
    const bool wanted = (lines.creases && edge.crease) || (lines.everyEdge && !edge.flat);
    if (!wanted) return 0;
    const bool shown = isShown(edge.firstFace) || (edge.secondFace != Edge::none && isShown(edge.secondFace));
    return shown || lines.hiddenOpacity > 0 ? width : 0;
  }

  /// Draws the visible stretches of an edge, and the hidden ones as the style wants them.
  void trace(const ScreenVertex& a, const ScreenVertex& b, float thickness) {
    if (!reachesPicture(a, b)) return;
    constexpr float stepLength = 1.5F, mostSteps = 4096;
    const float size = std::hypot(b.x - a.x, b.y - a.y);
    const int steps = static_cast<int>(std::clamp(size / stepLength, 1.0F, mostSteps));
    const float share = 1.0F / static_cast<float>(steps);
    int start = 0;
    bool visible = isVisible(between(a, b, share / 2));
    for (int i = 1; i <= steps; ++i) {
      const bool next = i < steps ? isVisible(between(a, b, (static_cast<float>(i) + 0.5F) * share)) : !visible;
      if (next == visible) continue;
      stretch(between(a, b, static_cast<float>(start) * share).at, between(a, b, static_cast<float>(i) * share).at,
              {thickness, visible ? 1 : lines.hiddenOpacity});
      start = i;
      visible = next;
    }
  }

  [[nodiscard]] bool reachesPicture(const ScreenVertex& a, const ScreenVertex& b) const {
    const auto reach = static_cast<float>(margin());
    return std::max(a.x, b.x) > -reach && std::min(a.x, b.x) < static_cast<float>(frame.width) + reach &&
           std::max(a.y, b.y) > -reach && std::min(a.y, b.y) < static_cast<float>(frame.height) + reach;
  }

  /// A line on the rim of a surface has that surface beside it only: looking at the neighbours too keeps it whole.
  [[nodiscard]] bool isVisible(LinePoint p) const {
    constexpr float tolerance = 0.0012F;
    const int x = static_cast<int>(p.at.x), y = static_cast<int>(p.at.y);
    if (x < 1 || y < 1 || x >= frame.width - 1 || y >= frame.height - 1) return true;
    const float* row = frame.farthest.data() + frame.at(x, y);
    const float nearby = std::min({row[0], row[-1], row[1], row[-frame.width], row[frame.width]});
    return p.depth >= nearby - tolerance;
  }

  void stretch(Vec2 from, Vec2 to, Pen pen) {
    if (pen.opacity <= 0) return;
    if (lines.wobble <= 0) return stroke(frame, from, to, pen);
    sketch(from, to, pen, 0);
    sketch(from, to, {pen.width * 0.7F, pen.opacity * 0.6F}, 71.0F);
  }

  /// By hand: short pieces whose ends wander. The wandering belongs to the place, so lines that meet stay together.
  void sketch(Vec2 from, Vec2 to, Pen pen, float seed) {
    const float size = std::hypot(to.x - from.x, to.y - from.y);
    const int pieces = std::max(1, static_cast<int>(size / (handPiece * frame.unit)));
    Vec2 last = wandered(from, seed);
    for (int i = 1; i <= pieces; ++i) {
      const float t = static_cast<float>(i) / static_cast<float>(pieces);
      const Vec2 next = wandered({from.x + (to.x - from.x) * t, from.y + (to.y - from.y) * t}, seed);
      stroke(frame, last, next, pen);
      last = next;
    }
  }

  [[nodiscard]] Vec2 wandered(Vec2 p, float seed) const {
    const float grid = 0.045F / frame.unit, reach = wobbleReach * lines.wobble * frame.unit;
    return {p.x + (softGrain(p.x * grid + seed, p.y * grid) - 0.5F) * reach,
            p.y + (softGrain(p.x * grid, p.y * grid + seed + 31.0F) - 0.5F) * reach};
  }

  const Mesh& mesh;
  const Lines& lines;
  Frame& frame;
  float width;
};

PixelBox grown(const PixelBox& box, int margin, const Frame& frame) {
  return {std::max(0, box.left - margin), std::max(0, box.top - margin), std::min(frame.width, box.right + margin),
          std::min(frame.height, box.bottom + margin)};
}

void clearInk(Frame& frame, const PixelBox& box) {
  frame.ink.resize(frame.at(0, frame.height));
  for (int y = box.top; y < box.bottom; ++y) {
    std::fill(frame.ink.data() + frame.at(box.left, y), frame.ink.data() + frame.at(box.right, y), 0.0F);
  }
}

/// Lead does not reach the valleys of the paper.
float onPaper(float ink, float wobble, int x, int y) { return ink * (1 - 0.45F * wobble * grain(x, y)); }

void applyInk(const Frame& frame, const PixelBox& box, const Look& look, Picture& target) {
  const std::uint32_t color = pixelFromRgb(look.line.value_or(look.style->line));
  const float wobble = look.style->lines.wobble;
  for (int y = box.top; y < box.bottom; ++y) {
    std::uint32_t* row = target.row(y);
    const float* ink = frame.ink.data() + frame.at(0, y);
    for (int x = box.left; x < box.right; ++x) {
      if (ink[x] <= 0) continue;
      const float amount = wobble > 0 ? onPaper(ink[x], wobble, x, y) : ink[x];
      row[x] = mixPixels(row[x], color, static_cast<std::uint32_t>(amount * 256));
    }
  }
}

}  // namespace

void drawLines(const Mesh& mesh, const Look& look, Frame& frame, Picture& target) {
  if (!look.style->usesLines() || frame.box.empty()) return;
  LineDrawer drawer(mesh, look, frame);
  const PixelBox box = grown(frame.box, drawer.margin(), frame);
  clearInk(frame, box);
  drawer.draw();
  applyInk(frame, box, look, target);
}

}  // namespace nerida

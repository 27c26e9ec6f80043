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
      if (thickness > 0) trace(edge, thickness);
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
  void trace(const Edge& edge, float thickness) {
    const ScreenVertex &a = frame.vertices[edge.from], &b = frame.vertices[edge.to];
    if (!reachesPicture(a, b) || isSeam(edge)) return;
    constexpr float stepLength = 1.5F, mostSteps = 4096;
    const float size = std::hypot(b.x - a.x, b.y - a.y);
    const int steps = static_cast<int>(std::clamp(size / stepLength, 1.0F, mostSteps));
    const float share = 1.0F / static_cast<float>(steps);
    const auto pointAt = [&](float step) { return between(a, b, step * share); };
    int start = 0;
    float opacity = opacityAt(pointAt(0.5F));
    for (int i = 1; i <= steps; ++i) {
      const auto step = static_cast<float>(i);
      const float next = i < steps ? opacityAt(pointAt(step + 0.5F)) : -1;
      if (next == opacity) continue;
      stretch(pointAt(static_cast<float>(start)).at, pointAt(step).at, {thickness, opacity});
      start = i;
      opacity = next;
    }
  }

  [[nodiscard]] float opacityAt(LinePoint p) const { return isVisible(p) ? 1.0F : lines.hiddenOpacity; }

  /// Whether a face ends only because another one, cut differently, goes on in its plane.
  [[nodiscard]] bool isSeam(const Edge& edge) const {
    if (edge.secondFace != Edge::none || lines.everyEdge) return false;
    const ScreenVertex &a = frame.vertices[edge.from], &b = frame.vertices[edge.to];
    const auto at = [&](float t) { return goesOn(edge.firstFace, between(a, b, t)) ? 1 : 0; };
    return at(0.2F) + at(0.5F) + at(0.8F) >= 2;
  }

  [[nodiscard]] bool goesOn(std::uint32_t face, LinePoint p) const {
    constexpr float outwards = 2.0F, sameDepth = 0.004F, samePlane = 0.95F;
    const Vec2 middle = middleOf(face);
    const float size = std::hypot(p.at.x - middle.x, p.at.y - middle.y);
    if (size < 0.01F) return false;
    const int x = static_cast<int>(p.at.x + (p.at.x - middle.x) / size * outwards);
    const int y = static_cast<int>(p.at.y + (p.at.y - middle.y) / size * outwards);
    if (x < frame.box.left || y < frame.box.top || x >= frame.box.right || y >= frame.box.bottom) return false;
    const std::int32_t neighbour = frame.faces[frame.at(x, y)][0];
    if (neighbour == Frame::nothing || std::fabs(frame.depths[frame.at(x, y)][0] - p.depth) > sameDepth) return false;
    return std::fabs(dot(normalOf(face), normalOf(static_cast<std::uint32_t>(neighbour)))) > samePlane;
  }

  [[nodiscard]] const ScreenVertex& corner(std::uint32_t face, int number) const {
    return frame.vertices[mesh.triangles[face].corners[number]];
  }

  [[nodiscard]] Vec2 middleOf(std::uint32_t face) const {
    const ScreenVertex &a = corner(face, 0), &b = corner(face, 1), &c = corner(face, 2);
    return {(a.x + b.x + c.x) / 3, (a.y + b.y + c.y) / 3};
  }

  [[nodiscard]] Vec3 normalOf(std::uint32_t face) const {
    const Vec3 origin = corner(face, 0).place;
    return normalized(cross(corner(face, 1).place - origin, corner(face, 2).place - origin));
  }

  [[nodiscard]] bool reachesPicture(const ScreenVertex& a, const ScreenVertex& b) const {
    const auto reach = static_cast<float>(margin());
    return std::max(a.x, b.x) > -reach && std::min(a.x, b.x) < static_cast<float>(frame.width) + reach &&
           std::max(a.y, b.y) > -reach && std::min(a.y, b.y) < static_cast<float>(frame.height) + reach;
  }

  /// A line on the rim of a surface has that surface beside it only: looking at the neighbours too keeps it whole.
  [[nodiscard]] bool isVisible(LinePoint p) const {
    constexpr float tolerance = 0.002F;
    const int x = static_cast<int>(p.at.x), y = static_cast<int>(p.at.y);
    if (x < 1 || y < 1 || x >= frame.width - 1 || y >= frame.height - 1) return true;
    const float* row = frame.farthest.data() + frame.at(x, y);
    const float nearby = std::min({row[0], row[-1], row[1], row[-frame.width], row[frame.width]});
    return p.depth >= nearby - tolerance;
  }

  void stretch(Vec2 from, Vec2 to, Pen pen) {
    if (pen.opacity <= 0) return;
    if (lines.hiddenDash > 0 && pen.opacity < 1) return dashes(from, to, pen);
    if (lines.wobble <= 0) return stroke(frame, from, to, pen);
    sketch(from, to, pen, 0);
    sketch(from, to, {pen.width * 0.7F, pen.opacity * 0.6F}, 71.0F);
  }

  /// The dashes belong to the place, so they run on over the many short edges of a bend.
  void dashes(Vec2 from, Vec2 to, Pen pen) {
    const bool level = std::fabs(to.x - from.x) >= std::fabs(to.y - from.y);
    const float start = level ? from.x : from.y, run = (level ? to.x : to.y) - start;
    const float dash = lines.hiddenDash * frame.unit, first = std::min(start, start + run),
                last = first + std::fabs(run);
    const auto at = [&](float place) {
      const float t = run != 0 ? (place - start) / run : 0;
      return Vec2{from.x + (to.x - from.x) * t, from.y + (to.y - from.y) * t};
    };
    for (int i = static_cast<int>(std::floor(first / (2 * dash))); static_cast<float>(i) * 2 * dash < last; ++i) {
      const float place = static_cast<float>(i) * 2 * dash;
      const float begin = std::max(place, first), end = std::min(place + dash, last);
      if (begin < end) stroke(frame, at(begin), at(end), pen);
    }
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

/// Lead and chalk do not reach the valleys of the paper.
float onPaper(float ink, float share, int x, int y) { return ink * (1 - share * grain(x, y)); }

void applyInk(const Frame& frame, const PixelBox& box, const Look& look, Picture& target) {
  const std::uint32_t color = pixelFromRgb(look.line.value_or(look.style->line));
  const float bare = look.style->lines.grain;
  for (int y = box.top; y < box.bottom; ++y) {
    std::uint32_t* row = target.row(y);
    const float* ink = frame.ink.data() + frame.at(0, y);
    for (int x = box.left; x < box.right; ++x) {
      if (ink[x] <= 0) continue;
      const float amount = bare > 0 ? onPaper(ink[x], bare, x, y) : ink[x];
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

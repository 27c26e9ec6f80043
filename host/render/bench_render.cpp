// bench_render: milliseconds for each frame of a turning model of 5,000 triangles at 640 x 480, style by style.

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <vector>

#include "host/render/renderer.h"

namespace nerida {
namespace {

constexpr int rings = 50, sides = 50;  // two triangles in each field
constexpr int frames = 60;

/// A knot: it covers much of the picture and much of itself.
Vec3 spine(float t) {
  const float angle = t * 2 * std::numbers::pi_v<float>;
  const float reach = 0.55F + 0.2F * std::cos(3 * angle);
  return {reach * std::cos(2 * angle), reach * std::sin(2 * angle), 0.25F * std::sin(3 * angle)};
}

void addRing(Mesh& mesh, float t) {
  const Vec3 center = spine(t), ahead = normalized(spine(t + 0.001F) - center);
  const Vec3 across = normalized(cross(ahead, {0, 0, 1})), up = cross(across, ahead);
  for (int i = 0; i < sides; ++i) {
    const float angle = static_cast<float>(i) * 2 * std::numbers::pi_v<float> / sides;
    const Vec3 normal = across * std::cos(angle) + up * std::sin(angle);
    mesh.positions.push_back(center + normal * 0.2F);
    mesh.normals.push_back(normal);
  }
}

Mesh knot() {
  Mesh mesh;
  mesh.materials.push_back({{0.7F, 0.25F, 0.1F}, false, nullptr});
  for (int ring = 0; ring < rings; ++ring) {
    addRing(mesh, static_cast<float>(ring) / rings);
    for (int i = 0; i < sides; ++i) {
      const auto at = [&](int r, int s) { return static_cast<std::uint32_t>(r % rings * sides + s % sides); };
      const std::uint32_t a = at(ring, i), b = at(ring + 1, i), c = at(ring + 1, i + 1), d = at(ring, i + 1);
      mesh.triangles.push_back({{a, c, b}, 0});
      mesh.triangles.push_back({{a, d, c}, 0});
    }
  }
  findEdges(mesh);
  return mesh;
}

Mat3 turned(int frame) {
  const float angle = static_cast<float>(frame) * 0.1F, c = std::cos(angle), s = std::sin(angle);
  return Mat3{{1, 0, 0}, {0, 0.8F, -0.6F}, {0, 0.6F, 0.8F}} * Mat3{{c, 0, s}, {0, 1, 0}, {-s, 0, c}};
}

struct Cost {
  double best, middle;  // milliseconds
};

Cost measure(const LookStyle& style, const Mesh& mesh) {
  Renderer renderer;
  Picture picture(640, 480);
  Look look;
  look.style = &style;
  std::vector<double> costs;
  for (int frame = 0; frame < frames; ++frame) {
    const auto start = std::chrono::steady_clock::now();
    renderer.draw(mesh, {turned(frame)}, look, picture);
    costs.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
  }
  std::sort(costs.begin(), costs.end());
  return {costs.front(), costs[costs.size() / 2]};
}

void report(const LookStyle& style, const Mesh& mesh) {
  const Cost cost = measure(style, mesh);
  std::printf("  %-16s %6.2f %6.2f\n", style.name.data(), cost.middle, cost.best);
}

}  // namespace
}  // namespace nerida

int main() {
  using namespace nerida;
  const Mesh mesh = knot();
  std::printf("%zu triangles, 640 x 480, milliseconds per frame: median, best\n", mesh.triangles.size());
  report(basicDraw(), mesh);
  for (const LookStyle& style : lookStyles()) report(style, mesh);
}

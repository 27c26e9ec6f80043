#include "host/render/frame.h"

namespace nerida {
namespace {

constexpr float eyeDistance = 5.0F;
// A sphere of radius 1 looks this large from there: the margin belongs to it.
constexpr float fit = 0.95F;
constexpr float referenceSide = 480.0F;

void growBox(PixelBox& box, const ScreenVertex& v) {
  box.left = std::min(box.left, static_cast<int>(std::floor(v.x)));
  box.top = std::min(box.top, static_cast<int>(std::floor(v.y)));
  box.right = std::max(box.right, static_cast<int>(std::floor(v.x)) + 1);
  box.bottom = std::max(box.bottom, static_cast<int>(std::floor(v.y)) + 1);
}

PixelBox boxOf(const Frame& frame) {
  PixelBox box{frame.width, frame.height, 0, 0};
  for (const ScreenVertex& v : frame.vertices) growBox(box, v);
  box.left = std::max(box.left, 0);
  box.top = std::max(box.top, 0);
  box.right = std::min(box.right, frame.width);
  box.bottom = std::min(box.bottom, frame.height);
  return box;
}

float doubledArea(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c) {
  // Screen y points down, so counter-clockwise for the viewer is the negative turn.
  return (b.y - a.y) * (c.x - a.x) - (b.x - a.x) * (c.y - a.y);
}

}  // namespace

void project(const Mesh& mesh, const View& view, Frame& frame) {
  const float half = static_cast<float>(std::min(frame.width, frame.height)) / 2;
  const float centerX = static_cast<float>(frame.width) / 2 + view.offsetX * half;
  const float centerY = static_cast<float>(frame.height) / 2 + view.offsetY * half;
  const float zoom = half * fit * view.scale;
  frame.unit = std::clamp(2 * half / referenceSide, 0.6F, 6.0F);
  frame.vertices.resize(mesh.positions.size());
  for (std::size_t i = 0; i < mesh.positions.size(); ++i) {
    const Vec3 p = view.rotation * mesh.positions[i];
    const float depth = eyeDistance / (eyeDistance - std::min(p.z, 2.0F));
    frame.vertices[i] = {centerX + p.x * depth * zoom, centerY - p.y * depth * zoom, depth, p,
                         view.rotation * mesh.normals[i]};
  }
  frame.box = boxOf(frame);
  frame.areas.resize(mesh.triangles.size());
  for (std::size_t i = 0; i < mesh.triangles.size(); ++i) {
    const auto& corners = mesh.triangles[i].corners;
    frame.areas[i] = doubledArea(frame.vertices[corners[0]], frame.vertices[corners[1]], frame.vertices[corners[2]]);
  }
}

}  // namespace nerida

#include "host/render/renderer.h"

#include "host/render/frame.h"

namespace nerida {

struct Renderer::Buffers {
  Frame frame;
};

Renderer::Renderer() : buffers(std::make_unique<Buffers>()) {}
Renderer::~Renderer() = default;

void Renderer::draw(const Mesh& mesh, const View& view, const Look& look, Picture& target) {
  if (target.width <= 0 || target.height <= 0) return;
  Frame& frame = buffers->frame;
  frame.width = target.width;
  frame.height = target.height;
  project(mesh, view, frame);
  rasterize(mesh, frame);
  shadeSurfaces(mesh, look, frame, target);
  drawLines(mesh, look, frame, target);
}

}  // namespace nerida

#pragma once

#include <memory>
#include <optional>

#include "host/render/color.h"
#include "host/render/mesh.h"
#include "host/render/picture.h"
#include "host/render/style.h"

namespace nerida {

/// Where the model stands in the picture.
struct View {
  Mat3 rotation;
  float scale = 1;    ///< 1 = the unit sphere just fits the picture's shorter side, with a margin
  float offsetX = 0;  ///< to the right, in halves of the picture's shorter side
  float offsetY = 0;  ///< downwards, likewise
};

struct Light {
  bool on = true;
  Vec3 direction{-0.6F, -0.6F, 0.5F};  ///< towards the lamp: x right, y down, z to the viewer; any length
};

/// A style with what the user changed of it.
struct Look {
  const LookStyle* style = nullptr;
  std::optional<PackedRgb> surface;
  std::optional<PackedRgb> line;
  std::optional<PackedRgb> background;
  int lineThickness = 100;  ///< per cent
  Light light;
};

/// Draws into pictures of any size. Keeps its buffers from frame to frame, so keep the renderer too.
class Renderer {
 public:
  Renderer();
  ~Renderer();
  Renderer(const Renderer&) = delete;
  Renderer& operator=(const Renderer&) = delete;

  /// Fills the whole of `target` at the size it has; an empty mesh gives the background alone.
  void draw(const Mesh& mesh, const View& view, const Look& look, Picture& target);

 private:
  struct Buffers;
  std::unique_ptr<Buffers> buffers;
};

}  // namespace nerida

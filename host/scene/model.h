#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>

#include "host/render/mesh.h"

namespace nerida {

/// A model file that cannot be used; the text is one sentence that can be shown to the user.
class ModelError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A model out of a binary glTF 2.0 file, centred and scaled into the unit sphere.
class Model {
 public:
  /// Frames for each second of key-frame animation unless the file's asset extras hold "framesPerSecond".
  static constexpr double defaultFrameRate = 24;

  /// Throws ModelError.
  static Model load(const std::filesystem::path& file);
  static Model parse(std::span<const std::uint8_t> bytes);

  Model(Model&&) noexcept;
  Model& operator=(Model&&) noexcept;
  ~Model();

  /// How the file itself places the model, in all its poses.
  struct Extent {
    Vec3 middle;
    float radius = 1;
  };
  [[nodiscard]] Extent extent() const;

  [[nodiscard]] int frameCount() const;  ///< 0 = not animated
  [[nodiscard]] double frameRate() const;

  /// The mesh in the pose of `frame` (0 when not animated).
  const Mesh& meshAt(int frame);

 private:
  struct Content;
  explicit Model(std::unique_ptr<Content> loaded);
  std::unique_ptr<Content> content;
};

}  // namespace nerida

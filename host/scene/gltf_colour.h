#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "host/render/vec.h"
#include "host/scene/gltf.h"

namespace nerida {

/// What gives a surface its colour, whichever of glTF's ways describes it.
struct ColourSource {
  Vec3 factor{1, 1, 1};
  int texture = -1;          ///< -1 = none
  int coordinates = 0;       ///< the set of texture coordinates that it uses
  Vec2 offset, scale{1, 1};  ///< how the texture lies on these
  float turn = 0;            ///< in radians, counter-clockwise
};

ColourSource colourOf(const tinygltf::Material& material);

/// Where the corners of a primitive lie on its material's texture; empty when the file does not say. Throws ModelError.
std::vector<Vec2> readTextureCoordinates(const tinygltf::Model& source, const tinygltf::Primitive& primitive,
                                         std::size_t count);

}  // namespace nerida

#include <algorithm>
#include <memory>

#include "host/render/tone.h"
#include "host/scene/gltf_colour.h"
#include "host/scene/gltf_reader.h"
#include "host/scene/gltf_values.h"
#include "host/scene/image_decoder.h"

namespace nerida {
namespace {

constexpr int largestSide = 512;

/// Halves an image until it is small enough: finer detail would only flicker.
Texture shrunkTexture(const DecodedImage& image) {
  const int step = std::max(1, (std::max(image.width, image.height) + largestSide - 1) / largestSide);
  Texture texture{(image.width + step - 1) / step, (image.height + step - 1) / step, {}};
  texture.texels.reserve(static_cast<std::size_t>(texture.width) * static_cast<std::size_t>(texture.height));
  const auto lightAt = [&](int x, int y) {
    const unsigned char* p =
        image.rgba.data() +
        (static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) + static_cast<std::size_t>(x)) * 4;
    return Vec3{linearFromByte(p[0]), linearFromByte(p[1]), linearFromByte(p[2])};
  };
  for (int y = 0; y < image.height; y += step) {
    for (int x = 0; x < image.width; x += step) {
      Vec3 sum;
      const int right = std::min(x + step, image.width), bottom = std::min(y + step, image.height);
      for (int v = y; v < bottom; ++v) {
        for (int u = x; u < right; ++u) sum = sum + lightAt(u, v);
      }
      texture.texels.push_back(sum * (1.0F / static_cast<float>((right - x) * (bottom - y))));
    }
  }
  return texture;
}

/// Each image is decoded once, when a material first asks for it; one that cannot be read is left out.
class TextureShelf {
 public:
  explicit TextureShelf(const tinygltf::Model& model) : source(model), decoded(model.images.size()) {}

  std::shared_ptr<const Texture> find(int textureIndex) {
    const int imageIndex = elementAt(source.textures, textureIndex).source;
    const tinygltf::Image& image = elementAt(source.images, imageIndex);
    std::shared_ptr<const Texture>& place = decoded[static_cast<std::size_t>(imageIndex)];
    if (!place) {
      if (const auto pixels = decodeImage(image.image)) {
        place = std::make_shared<const Texture>(shrunkTexture(*pixels));
      }
    }
    return place;
  }

 private:
  const tinygltf::Model& source;
  std::vector<std::shared_ptr<const Texture>> decoded;
};

Material materialOf(const tinygltf::Material& source, TextureShelf& textures) {
  const ColourSource colour = colourOf(source);
  Material material;
  material.doubleSided = source.doubleSided;
  material.color = colour.factor;
  if (colour.texture >= 0) material.texture = textures.find(colour.texture);
  return material;
}

}  // namespace

void readMaterials(const tinygltf::Model& source, ModelContent& content) {
  TextureShelf textures(source);
  content.mesh.materials.push_back({});  // for surfaces without a material
  for (const tinygltf::Material& material : source.materials) {
    content.mesh.materials.push_back(materialOf(material, textures));
  }
}

}  // namespace nerida

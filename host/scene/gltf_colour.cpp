#include "host/scene/gltf_colour.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "host/scene/gltf_values.h"

namespace nerida {
namespace {

using tinygltf::Value;

const Value* memberOf(const Value& object, const char* name) {
  return object.IsObject() && object.Has(name) ? &object.Get(name) : nullptr;
}

const Value* memberOf(const tinygltf::ExtensionMap& extensions, const char* name) {
  const auto found = extensions.find(name);
  return found == extensions.end() ? nullptr : &found->second;
}

/// The numbers of an array; those that are missing or none stay as they are.
template <std::size_t Count>
void readNumbers(const Value* from, std::array<float, Count>& numbers) {
  if (from == nullptr || !from->IsArray()) return;
  for (std::size_t i = 0; i < std::min(Count, from->ArrayLen()); ++i) {
    const Value& number = from->Get(static_cast<int>(i));
    if (number.IsNumber()) numbers[i] = static_cast<float>(number.GetNumberAsDouble());
  }
}

int wholeOf(const Value& object, const char* name, int otherwise) {
  const Value* number = memberOf(object, name);
  return number != nullptr && number->IsInt() ? number->GetNumberAsInt() : otherwise;
}

void readTransform(const Value* transform, ColourSource& colour) {
  if (transform == nullptr) return;
  std::array offset{0.0F, 0.0F}, scale{1.0F, 1.0F};
  readNumbers(memberOf(*transform, "offset"), offset);
  readNumbers(memberOf(*transform, "scale"), scale);
  colour.offset = {offset[0], offset[1]};
  colour.scale = {scale[0], scale[1]};
  const Value* turn = memberOf(*transform, "rotation");
  if (turn != nullptr && turn->IsNumber()) colour.turn = static_cast<float>(turn->GetNumberAsDouble());
  colour.coordinates = wholeOf(*transform, "texCoord", colour.coordinates);
}

Vec3 clamped(const std::array<float, 3>& color) {
  const auto share = [](float v) { return std::isfinite(v) ? std::clamp(v, 0.0F, 1.0F) : 1.0F; };
  return {share(color[0]), share(color[1]), share(color[2])};
}

/// The older way, which some exporters still prefer.
ColourSource olderColourOf(const Value& description) {
  ColourSource colour;
  std::array factor{1.0F, 1.0F, 1.0F};
  readNumbers(memberOf(description, "diffuseFactor"), factor);
  colour.factor = clamped(factor);
  const Value* texture = memberOf(description, "diffuseTexture");
  if (texture == nullptr) return colour;
  colour.texture = wholeOf(*texture, "index", -1);
  colour.coordinates = wholeOf(*texture, "texCoord", 0);
  if (const Value* extensions = memberOf(*texture, "extensions")) {
    readTransform(memberOf(*extensions, "KHR_texture_transform"), colour);
  }
  return colour;
}

}  // namespace

ColourSource colourOf(const tinygltf::Material& material) {
  const Value* older = memberOf(material.extensions, "KHR_materials_pbrSpecularGlossiness");
  if (older != nullptr) return olderColourOf(*older);
  const auto& surface = material.pbrMetallicRoughness;
  ColourSource colour;
  const auto& factor = surface.baseColorFactor;
  if (factor.size() >= 3) {
    colour.factor =
        clamped({static_cast<float>(factor[0]), static_cast<float>(factor[1]), static_cast<float>(factor[2])});
  }
  colour.texture = surface.baseColorTexture.index;
  colour.coordinates = surface.baseColorTexture.texCoord;
  readTransform(memberOf(surface.baseColorTexture.extensions, "KHR_texture_transform"), colour);
  return colour;
}

std::vector<Vec2> readTextureCoordinates(const tinygltf::Model& source, const tinygltf::Primitive& primitive,
                                         std::size_t count) {
  const bool known = primitive.material >= 0 && static_cast<std::size_t>(primitive.material) < source.materials.size();
  const ColourSource colour =
      known ? colourOf(source.materials[static_cast<std::size_t>(primitive.material)]) : ColourSource{};
  const auto found = primitive.attributes.find("TEXCOORD_" + std::to_string(colour.coordinates));
  if (found == primitive.attributes.end()) return {};
  const Values values(source, found->second, 2);
  if (values.count() < count) throw ModelError("The model file is missing data for some of its corners.");
  const float cosine = std::cos(colour.turn), sine = std::sin(colour.turn);
  std::vector<Vec2> places(count);
  for (std::size_t i = 0; i < count; ++i) {
    const Vec2 place = values.vec2(i);
    const float x = place.x * colour.scale.x, y = place.y * colour.scale.y;
    places[i] = {cosine * x + sine * y + colour.offset.x, cosine * y - sine * x + colour.offset.y};
  }
  return places;
}

}  // namespace nerida

#include "host/library/glb_check.h"

#include <fstream>
#include <iterator>

#define TINYGLTF_IMPLEMENTATION
#define TINYGLTF_NO_STB_IMAGE
#define TINYGLTF_NO_STB_IMAGE_WRITE
#define TINYGLTF_NO_EXTERNAL_IMAGE
#define TINYGLTF_NO_INCLUDE_JSON
#define TINYGLTF_NO_FS
// tiny_gltf.h is told to take the JSON library that came before it.
#include <nlohmann/json.hpp>

#include <tiny_gltf.h>

namespace nerida::library {
namespace {

template <typename Items>
bool isIndex(int index, const Items& items) {
  return index >= 0 && static_cast<std::size_t>(index) < items.size();
}

/// Whether all of an accessor's elements lie within its view, and the view within its buffer.
bool accessorLiesWithin(const tinygltf::Model& model, int index) {
  if (!isIndex(index, model.accessors)) return false;
  const tinygltf::Accessor& accessor = model.accessors[static_cast<std::size_t>(index)];
  if (!isIndex(accessor.bufferView, model.bufferViews) || accessor.count == 0) return false;
  const tinygltf::BufferView& view = model.bufferViews[static_cast<std::size_t>(accessor.bufferView)];
  const int stride = accessor.ByteStride(view);
  const int element = tinygltf::GetComponentSizeInBytes(static_cast<std::uint32_t>(accessor.componentType)) *
                      tinygltf::GetNumComponentsInType(static_cast<std::uint32_t>(accessor.type));
  if (stride <= 0 || element <= 0 || !isIndex(view.buffer, model.buffers)) return false;
  const std::size_t size = model.buffers[static_cast<std::size_t>(view.buffer)].data.size();
  if (view.byteOffset > size || view.byteLength > size - view.byteOffset) return false;
  if (accessor.byteOffset > view.byteLength || accessor.count > size) return false;
  const std::size_t last = (accessor.count - 1) * static_cast<std::size_t>(stride) + static_cast<std::size_t>(element);
  return last <= view.byteLength - accessor.byteOffset;
}

std::string wrongPrimitive(const tinygltf::Model& model, const tinygltf::Primitive& primitive) {
  const auto positions = primitive.attributes.find("POSITION");
  if (positions == primitive.attributes.end()) return "a mesh has no positions";
  for (const auto& [name, accessor] : primitive.attributes) {
    if (!accessorLiesWithin(model, accessor)) return "the " + name + " data of a mesh are cut off";
  }
  if (primitive.indices >= 0 && !accessorLiesWithin(model, primitive.indices)) return "a mesh's indices are cut off";
  return {};
}

std::string wrongContent(const tinygltf::Model& model) {
  if (model.meshes.empty()) return "it holds no mesh";
  for (const tinygltf::Mesh& mesh : model.meshes) {
    for (const tinygltf::Primitive& primitive : mesh.primitives) {
      if (std::string wrong = wrongPrimitive(model, primitive); !wrong.empty()) return wrong;
    }
  }
  for (const tinygltf::Animation& animation : model.animations) {
    for (const tinygltf::AnimationSampler& sampler : animation.samplers) {
      if (!accessorLiesWithin(model, sampler.input) || !accessorLiesWithin(model, sampler.output)) {
        return "its animation is cut off";
      }
    }
  }
  return {};
}

/// Pictures inside the file are not looked at here.
bool skipImage(tinygltf::Image*, int, std::string*, std::string*, int, int, const unsigned char*, int, void*) {
  return true;
}

}  // namespace

std::string whatIsWrongWith(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return "it cannot be read";
  const std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  tinygltf::TinyGLTF reader;
  reader.SetImageLoader(skipImage, nullptr);
  tinygltf::Model model;
  std::string error, warning;
  const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
  if (!reader.LoadBinaryFromMemory(&model, &error, &warning, data, static_cast<unsigned int>(bytes.size()))) {
    const std::size_t end = error.find('\n');
    return "it is not binary glTF 2.0" + (error.empty() ? "" : " (" + error.substr(0, end) + ")");
  }
  return wrongContent(model);
}

}  // namespace nerida::library

#include "host/scene/gltf_values.h"

#include <algorithm>
#include <cstring>

namespace nerida {
namespace {

template <class T>
T load(const unsigned char* from) {
  T value;
  std::memcpy(&value, from, sizeof value);
  return value;
}

std::size_t sizeOfComponent(int type) {
  const int size = tinygltf::GetComponentSizeInBytes(static_cast<std::uint32_t>(type));
  if (size <= 0) throw ModelError("The model file holds numbers of an unknown kind.");
  return static_cast<std::size_t>(size);
}

}  // namespace

Values::Values(const tinygltf::Model& model, int accessorIndex, int components) {
  const tinygltf::Accessor& accessor = elementAt(model.accessors, accessorIndex);
  if (accessor.sparse.isSparse) throw ModelError("The model file holds sparse data, which cannot be read.");
  const tinygltf::BufferView& view = elementAt(model.bufferViews, accessor.bufferView);
  const tinygltf::Buffer& buffer = elementAt(model.buffers, view.buffer);
  componentType = accessor.componentType;
  componentSize = sizeOfComponent(componentType);
  normalizedIntegers = accessor.normalized;
  total = accessor.count;
  if (tinygltf::GetNumComponentsInType(static_cast<std::uint32_t>(accessor.type)) < components) {
    throw ModelError("The model file holds values of the wrong kind.");
  }
  const auto own =
      static_cast<std::size_t>(tinygltf::GetNumComponentsInType(static_cast<std::uint32_t>(accessor.type)));
  const std::uint64_t size = own * componentSize;
  stride = view.byteStride > 0 ? view.byteStride : static_cast<std::size_t>(size);
  const std::uint64_t span = total > 0 ? (std::uint64_t{total} - 1) * stride + size : 0;
  const std::uint64_t start = std::uint64_t{view.byteOffset} + accessor.byteOffset;
  const bool countsAreSane = total <= buffer.data.size() && stride <= 65'535 && view.byteOffset <= buffer.data.size() &&
                             accessor.byteOffset <= buffer.data.size();
  if (!countsAreSane || start + span > buffer.data.size()) {
    throw ModelError("The model file refers to data beyond its end.");
  }
  data = buffer.data.data() + start;
}

const unsigned char* Values::at(std::size_t index, int component) const {
  return data + index * stride + static_cast<std::size_t>(component) * componentSize;
}

float Values::number(std::size_t index, int component) const {
  const unsigned char* from = at(index, component);
  const auto scaled = [&](auto value, float top) {
    const auto plain = static_cast<float>(value);
    return normalizedIntegers ? std::max(plain / top, -1.0F) : plain;
  };
  switch (componentType) {
    case TINYGLTF_COMPONENT_TYPE_FLOAT:
      return load<float>(from);
    case TINYGLTF_COMPONENT_TYPE_DOUBLE:
      return static_cast<float>(load<double>(from));
    case TINYGLTF_COMPONENT_TYPE_BYTE:
      return scaled(load<std::int8_t>(from), 127.0F);
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_BYTE:
      return scaled(load<std::uint8_t>(from), 255.0F);
    case TINYGLTF_COMPONENT_TYPE_SHORT:
      return scaled(load<std::int16_t>(from), 32'767.0F);
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT:
      return scaled(load<std::uint16_t>(from), 65'535.0F);
    default:
      return static_cast<float>(whole(index, component));
  }
}

std::uint32_t Values::whole(std::size_t index, int component) const {
  const unsigned char* from = at(index, component);
  switch (componentType) {
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_BYTE:
      return load<std::uint8_t>(from);
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT:
      return load<std::uint16_t>(from);
    case TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT:
      return load<std::uint32_t>(from);
    default:
      throw ModelError("The model file holds numbers where it should hold indices.");
  }
}

}  // namespace nerida

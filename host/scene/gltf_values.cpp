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
  componentType = accessor.componentType;
  componentSize = sizeOfComponent(componentType);
  normalizedIntegers = accessor.normalized;
  total = accessor.count;
  const int numbers = tinygltf::GetNumComponentsInType(static_cast<std::uint32_t>(accessor.type));
  if (numbers < components) throw ModelError("The model file holds values of the wrong kind.");
  const std::size_t size = static_cast<std::size_t>(numbers) * componentSize;
  if (accessor.bufferView >= 0 || !accessor.sparse.isSparse) {
    look(model, accessor.bufferView, accessor.byteOffset, size);
  }
  if (accessor.sparse.isSparse) mend(model, accessor, size);
}

void Values::look(const tinygltf::Model& model, int bufferView, std::size_t byteOffset, std::size_t size) {
  const tinygltf::BufferView& view = elementAt(model.bufferViews, bufferView);
  const tinygltf::Buffer& buffer = elementAt(model.buffers, view.buffer);
  stride = view.byteStride > 0 ? view.byteStride : size;
  const std::uint64_t span = total > 0 ? (std::uint64_t{total} - 1) * stride + size : 0;
  const std::uint64_t start = std::uint64_t{view.byteOffset} + byteOffset;
  const bool countsAreSane = total <= buffer.data.size() && stride <= 65'535 && view.byteOffset <= buffer.data.size() &&
                             byteOffset <= buffer.data.size();
  if (!countsAreSane || start + span > buffer.data.size()) {
    throw ModelError("The model file refers to data beyond its end.");
  }
  data = buffer.data.data() + start;
}

/// Sparse data: all values, or zeros instead, of which some are replaced.
void Values::mend(const tinygltf::Model& model, const tinygltf::Accessor& accessor, std::size_t size) {
  constexpr std::size_t mostValues = 6'000'000;
  if (total > mostValues) throw ModelError("The model is too large.");
  std::vector<unsigned char> all(total * size);
  for (std::size_t i = 0; data != nullptr && i < total; ++i) std::memcpy(&all[i * size], data + i * stride, size);
  const auto& sparse = accessor.sparse;
  Values places, values;
  places.total = values.total = static_cast<std::size_t>(std::max(0, sparse.count));
  places.componentType = sparse.indices.componentType;
  places.componentSize = sizeOfComponent(places.componentType);
  places.look(model, sparse.indices.bufferView, static_cast<std::size_t>(std::max(0, sparse.indices.byteOffset)),
              places.componentSize);
  values.look(model, sparse.values.bufferView, static_cast<std::size_t>(std::max(0, sparse.values.byteOffset)), size);
  for (std::size_t i = 0; i < places.total; ++i) {
    const std::size_t place = places.whole(i, 0);
    if (place >= total) throw ModelError("The model file refers to a corner that it does not contain.");
    std::memcpy(&all[place * size], values.data + i * values.stride, size);
  }
  own = std::move(all);
  data = own.data();
  stride = size;
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

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/render/vec.h"
#include "host/scene/gltf.h"
#include "host/scene/model.h"
#include "host/scene/model_content.h"

namespace nerida {

/// Typed reading of one accessor's data, all of it checked to lie within the file. Throws ModelError.
class Values {
 public:
  /// `components` = numbers in each value, 1 to 16.
  Values(const tinygltf::Model& model, int accessor, int components);
  Values(const Values&) = delete;
  Values& operator=(const Values&) = delete;

  [[nodiscard]] std::size_t count() const { return total; }
  [[nodiscard]] float number(std::size_t index, int component) const;
  [[nodiscard]] std::uint32_t whole(std::size_t index, int component) const;
  [[nodiscard]] Vec2 vec2(std::size_t index) const { return {number(index, 0), number(index, 1)}; }
  [[nodiscard]] Vec3 vec3(std::size_t index) const { return {number(index, 0), number(index, 1), number(index, 2)}; }
  [[nodiscard]] Quaternion quaternion(std::size_t index) const {
    return {number(index, 0), number(index, 1), number(index, 2), number(index, 3)};
  }

 private:
  Values() = default;
  /// Points `data` at `total` values of `size` bytes, checked to lie within the file.
  void look(const tinygltf::Model& model, int bufferView, std::size_t byteOffset, std::size_t size);
  void mend(const tinygltf::Model& model, const tinygltf::Accessor& accessor, std::size_t size);
  [[nodiscard]] const unsigned char* at(std::size_t index, int component) const;

  std::vector<unsigned char> own;  ///< of sparse data, which lies in several places
  const unsigned char* data = nullptr;
  std::size_t stride = 0, total = 0;
  std::size_t componentSize = 0;
  int componentType = 0;
  bool normalizedIntegers = false;
};

/// The element, or ModelError when the file names one that it does not have.
template <class Element>
const Element& elementAt(const std::vector<Element>& list, int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= list.size()) {
    throw ModelError("The model file refers to something that it does not contain.");
  }
  return list[static_cast<std::size_t>(index)];
}

}  // namespace nerida

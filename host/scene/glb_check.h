#pragma once

#include <cstdint>
#include <span>

namespace nerida {

/// Throws ModelError unless the bytes are a whole binary glTF container whose description is of a sane shape.
/// What comes after trusts these things: the sizes of the chunks, the depth of the description, and how many
/// copies of its data it asks for.
void checkGlb(std::span<const std::uint8_t> bytes);

}  // namespace nerida

#pragma once

#include <optional>

#include "host/library/fields.h"

namespace nerida::library {

/// The mesh of a part that names a shape; nothing for a part that only groups others. Throws LibraryError.
std::optional<Mesh> describedShape(Fields& fields);

}  // namespace nerida::library

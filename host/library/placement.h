#pragma once

#include "host/library/fields.h"

namespace nerida::library {

/// A part's "size": one factor or three.
Vec sizeOf(Fields& fields);

/// Where a part's copies are, by its "repeat" and "mirror"; the first one is where the part itself is.
std::vector<Transform> copiesOf(Fields& fields);

}  // namespace nerida::library

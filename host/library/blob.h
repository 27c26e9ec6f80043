#pragma once

#include "host/library/fields.h"

namespace nerida::library {

/// One skin over several balls and tubes ("of"), whose seams are rounded off by the softness that "blob" gives:
/// bodies of animals, and whatever else grew. Throws LibraryError.
Mesh blobShape(Fields& fields);

}  // namespace nerida::library

#pragma once

#include <memory>
#include <string>

#include "platform/bitmap_resources.h"

namespace nerida {

// The bitmaps of a resource file in a folder; an empty folder is the one of this module. A file that cannot be read
// has no bitmaps. Each file is read once for all bars of the process that hold it.
std::shared_ptr<const BitmapResources> openBitmapFile(const std::string& folder, const std::string& file);

}  // namespace nerida

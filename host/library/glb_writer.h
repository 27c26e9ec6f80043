#pragma once

#include <string>

#include "host/library/model.h"

namespace nerida::library {

/// The bytes of a binary glTF 2.0 file. The same model gives the same bytes: numbers are rounded to a fixed grid that
/// is far finer than a pixel, so that the last bits of different arithmetic do not show.
std::string writeGlb(const BuiltModel& model);

}  // namespace nerida::library

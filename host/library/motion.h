#pragma once

#include "host/library/fields.h"
#include "host/library/model.h"

namespace nerida::library {

/// Reads "animate" of a part: keys of turns (degrees) and shifts by frame or by share of the whole animation (0 to 1),
/// relative to the resting place.
/// Gives one entry for each of the `frames` frames. Throws LibraryError.
Motion describedMotion(const nlohmann::json& animate, const std::string& where, int frames, const Vec& restPlace,
                       const Quaternion& restTurn);

}  // namespace nerida::library

#pragma once

#include <string>

#include "platform/value.h"

namespace nerida {

// How a value is written for people, with its type: 16-bit numbers end in %, 32-bit ones in &, others in #, texts stand
// in quotes.
std::string written(const Value& value);

}  // namespace nerida

#pragma once

#include <oaidl.h>
#include <windows.h>

#include <memory>

#include "platform/value.h"

namespace nerida {

// A new array of variants; the caller destroys it.
SAFEARRAY* toSafeArray(const Array& array);

// The elements of a one-dimensional array of any element type and lower bound; null for every other array. An array
// that was never dimensioned has no elements.
std::shared_ptr<const Array> fromSafeArray(SAFEARRAY* array);

}  // namespace nerida

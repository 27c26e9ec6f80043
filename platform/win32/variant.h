#pragma once

#include "platform/value.h"
#include "platform/win32/com.h"

namespace nerida {

// Fills an empty variant with the exact type that the value stands for.
void toVariant(const Value& value, VARIANT& variant);

// References are followed. Kinds of content that a Value cannot hold (arrays of several dimensions, error codes, …)
// become an object without members, so that they are neither a number, a text nor an array to anybody.
Value fromVariant(const VARIANT& variant);

}  // namespace nerida

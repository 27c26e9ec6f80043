#pragma once

#include <oaidl.h>
#include <windows.h>

#include <memory>

#include "platform/value.h"

namespace nerida {

// The elements of a script array, which is an object with a length and members named "0", "1", …; null for any other
// object.
std::shared_ptr<const Array> fromScriptArray(IDispatch& object);

}  // namespace nerida

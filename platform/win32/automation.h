#pragma once

#include <oaidl.h>
#include <windows.h>

#include "platform/automation.h"

namespace nerida {

// An object reached through its automation interface; takes a reference of its own. Null gives a null object.
ObjectRef wrapDispatch(IDispatch* dispatch);

// The automation interface behind an object, with a reference for the caller; null for a null object and for objects
// that did not come from automation.
IDispatch* dispatchOf(const ObjectRef& object);

}  // namespace nerida

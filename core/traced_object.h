#pragma once

#include "core/trace.h"

namespace nerida {

// The object as it is, with every access to it in the trace. The object itself where there is no trace.
ObjectRef watched(ObjectRef object, std::shared_ptr<Trace> trace);

}  // namespace nerida

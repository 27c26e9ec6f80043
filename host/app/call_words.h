#pragma once

#include <string>

#include "host/app/call_log.h"

namespace nerida::host {

/// What a call did to the object, for people; empty when it only asked something.
std::string wordsFor(const CallRecord& record);

}  // namespace nerida::host

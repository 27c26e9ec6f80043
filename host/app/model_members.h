#pragma once

#include <span>

#include "host/app/model_object.h"
#include "host/win32/automation.h"

namespace nerida::host {

using ModelMember = Member<ModelObject>;

/// All members. The dispatch identifier of one is its index plus 1.
std::span<const ModelMember> modelMembers();

}  // namespace nerida::host

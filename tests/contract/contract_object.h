#pragma once

#include "platform/automation.h"

namespace nerida {

// The object of the contract as an automation object, reached through its interface.
ObjectRef makeContractObject();

}  // namespace nerida

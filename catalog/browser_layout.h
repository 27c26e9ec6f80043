#pragma once

#include "platform/form_layout.h"

namespace nerida {

extern const FormLayout browserLayout;

}  // namespace nerida

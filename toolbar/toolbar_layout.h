#pragma once

#include "platform/form_layout.h"

namespace nerida {

extern const FormLayout toolbarLayout;

// The window's height with the movement groups folded away and with them shown.
inline constexpr Twips foldedHeight{735};
inline constexpr Twips unfoldedHeight{1140};

}  // namespace nerida

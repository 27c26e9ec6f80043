#pragma once

#include "platform/form_layout.h"

namespace nerida {

extern const FormLayout backgroundColorsLayout;
extern const FormLayout lineColorsLayout;
extern const FormLayout surfaceColorsLayout;
extern const FormLayout lineThicknessLayout;
extern const FormLayout lightingLayout;
extern const FormLayout animationLayout;

}  // namespace nerida

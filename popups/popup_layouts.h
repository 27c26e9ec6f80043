#pragma once

#include <cstdint>
#include <span>

#include "platform/form_layout.h"

namespace nerida {

// Sizes in twips. A popup has no caption; assistive tools call it by the name of its button.
constexpr FormLayout popupLayout(const char* name, const char* accessibleName, std::int32_t width, std::int32_t height,
                                 std::span<const ControlLayout> controls) {
  return {name, "", FormFrame::popup, {width}, {height}, controls, {}, false, accessibleName};
}

extern const FormLayout backgroundColorsLayout;
extern const FormLayout lineColorsLayout;
extern const FormLayout surfaceColorsLayout;
extern const FormLayout lineThicknessLayout;
extern const FormLayout lightingLayout;
extern const FormLayout animationLayout;

}  // namespace nerida

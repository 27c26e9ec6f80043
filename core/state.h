#pragma once

#include <array>
#include <cstdint>

#include "platform/automation.h"
#include "platform/units.h"

namespace nerida {

class Form;

// Places of the forms in the registry. 3, 5 and 7 stay empty.
enum FormIndex : int {
  toolbarIndex = 0,
  lineThicknessIndex = 1,
  lineColorsIndex = 2,
  surfaceColorsIndex = 4,
  backgroundColorsIndex = 6,
  animationIndex = 8,
  lightingIndex = 9,
  catalogIndex = 10,
};
inline constexpr int formCount = 11;

// The library's state, shared by all forms. Data only. One user-interface thread reads and writes it.
struct State {
  int controls = 0;           // living controls; without one no form can be loaded
  int unloading = 0;          // forms that are unloading right now; what fails meanwhile is told to nobody
  int bindings = 0;           // raised whenever the model is bound or let go, so that a call under way can tell
  ObjectRef gModelObject;     // the embedded object; every form calls the model only through this reference
  WindowHandle gHostWnd = 0;  // the host's window, origin of the toolbar's default place
  std::array<Form*, formCount> gForms{};      // borrowed: the library owns its forms
  std::array<bool, formCount> gFormLoaded{};  // each form keeps its own entry
  std::array<bool, formCount> gFormShown{};   // likewise
  std::int32_t gTwipsPerPixelX = 0;           // 0 until the first control starts, never 0 after
  std::int32_t gTwipsPerPixelY = 0;
};

}  // namespace nerida

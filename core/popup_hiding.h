#pragma once

#include "core/form.h"

namespace nerida {

// Closes every form of the indexes first to last that is marked as shown, in ascending order, by its own HideSelf.
// An error ends the walk and reaches the caller.
void hideShownForms(State& state, int first, int last);

// All of the toolbar's popups and the catalog; never the toolbar.
inline void HideAllPopups(State& state) { hideShownForms(state, lineThicknessIndex, catalogIndex); }

}  // namespace nerida

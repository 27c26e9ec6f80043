#include "core/popup_hiding.h"

namespace nerida {

void hideShownForms(State& state, int first, int last) {
  for (auto i = static_cast<std::size_t>(first); i <= static_cast<std::size_t>(last); ++i) {
    if (state.gFormShown[i] && state.gForms[i]) state.gForms[i]->HideSelf();
  }
}

}  // namespace nerida

#pragma once

#include <filesystem>

namespace nerida::bench {

/// Each prints lines "name<blank>figure". Those whose names say "first" or "shown" want a process of their own.
void firstToolbar();
void firstBareToolbar();
void creations();
void presses();
void toolbarShown();
void bareToolbarShown();
void showingAndHiding();
void paletteOpenings();
void colorChoices();
/// All popups show only for a model with an animation.
void popupCycles(const std::filesystem::path& animatedModel);

}  // namespace nerida::bench

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
void popupCycles(const std::filesystem::path& animatedModel, int cycles);

/// These want a model database with 32,767 models that are found as "boat", of which the first two are there.
void longLists();
void hitPictures();

}  // namespace nerida::bench

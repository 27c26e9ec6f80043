#pragma once

namespace nerida::bench {

/// Each prints lines "name<blank>figure". Those whose names say "first" or "shown" want a process of their own.
void firstToolbar();
void firstBareToolbar();
void creations();
void presses();
void toolbarShown();
void bareToolbarShown();
void showingAndHiding();

}  // namespace nerida::bench

#pragma once

#include "platform/canvas.h"

namespace nerida {

// The toolbar's etched glyphs. They are drawn in the shadow and the highlight colour of the desktop's scheme only, each
// shadow stroke with a highlight twin 15 twips to the right and below.
void paintSurfaceSwatch(Canvas& canvas);
void paintLineSwatch(Canvas& canvas);
void paintLineThicknessSwatch(Canvas& canvas);
void paintAnimationIndicator(Canvas& canvas);

}  // namespace nerida

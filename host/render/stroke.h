#pragma once

#include "host/render/frame.h"

namespace nerida {

struct Pen {
  float width = 1;    ///< pixels
  float opacity = 1;  ///< of the whole stroke
};

/// Puts ink on a straight line with round ends; where strokes cross, the ink gets no denser.
void stroke(Frame& frame, Vec2 from, Vec2 to, Pen pen);

}  // namespace nerida

#pragma once

#include "host/render/vec.h"

namespace nerida {

/// Hundredths of a degree, 0 to 35999. The model turns about the vertical axis (y), then about the horizontal one
/// (x), then in the picture plane (z). Positive x tilts its front up, y turns its front to the left, z turns the
/// picture clockwise.
struct Orientation {
  int x = 0, y = 0, z = 0;
  friend bool operator==(const Orientation&, const Orientation&) = default;
};

Mat3 rotationOf(Orientation orientation);

/// The orientation that gives this rotation: of the several ones, that whose x is within a quarter turn.
Orientation orientationOf(const Mat3& rotation);

/// Turns by hundredths of a degree about one of the viewer's axes.
Mat3 tiltUp(int angle);
Mat3 turnLeft(int angle);
Mat3 turnClockwise(int angle);

/// The nearest true rotation: many small turns must not bend the model.
Mat3 straightened(const Mat3& rotation);

}  // namespace nerida

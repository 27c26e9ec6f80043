#pragma once

#include "host/render/mesh.h"

namespace nerida {

// Closed shapes to draw, all within the unit sphere, edges found.

Mesh box(Vec3 half, Vec3 color);
Mesh ball(float radius, Vec3 color);
Mesh ring(float radius, float thickness, Vec3 color);

/// A red box, a green ball and a blue ring that overlap in the picture.
Mesh stillLife();

/// Adds `part`, moved.
void append(Mesh& mesh, const Mesh& part, Vec3 by);

}  // namespace nerida

#include "host/library/described_shapes.h"

#include <algorithm>
#include <cmath>

#include "host/library/blob.h"
#include "host/library/curves.h"
#include "host/library/shapes.h"

namespace nerida::library {
namespace {

constexpr int mostSegments = 256;

int segmentsOf(Fields& fields, const char* key, int otherwise) {
  const int segments = fields.integer(key, otherwise);
  if (segments < 3 || segments > mostSegments) fields.fail(std::string("\"") + key + "\" must be 3 to 256");
  return segments;
}

double positive(Fields& fields, const char* key) {
  const double value = fields.number(key);
  if (!(value > 0)) fields.fail(std::string("\"") + key + "\" must be greater than 0");
  return value;
}

Mesh boxShape(Fields& fields) {
  const Vec size = fields.vec("box", {});
  if (!(size.x > 0 && size.y > 0 && size.z > 0)) fields.fail("a box needs three sides greater than 0");
  return makeBox(size, fields.number("round", 0));
}

Mesh sphereShape(Fields& fields) {
  const int segments = segmentsOf(fields, "segments", 20);
  if (!fields.raw("sphere").is_array()) return makeSphere(positive(fields, "sphere"), segments);
  const Vec radii = fields.vec("sphere", {});
  if (!(radii.x > 0 && radii.y > 0 && radii.z > 0)) fields.fail("a sphere needs radii greater than 0");
  Mesh mesh = makeSphere(1, segments);
  mesh.map(Transform::scale(radii));
  return mesh;
}

Mesh cylinderShape(Fields& fields) {
  const double radius = positive(fields, "cylinder");
  return makeCylinder(radius, fields.number("top", radius), positive(fields, "height"), fields.number("round", 0),
                      segmentsOf(fields, "segments", 24));
}

Mesh coneShape(Fields& fields) {
  return makeCylinder(positive(fields, "cone"), 0, positive(fields, "height"), 0, segmentsOf(fields, "segments", 24));
}

Mesh torusShape(Fields& fields) {
  return makeTorus(positive(fields, "torus"), positive(fields, "tube"), segmentsOf(fields, "segments", 24),
                   segmentsOf(fields, "sides", 10));
}

std::vector<Vec> curveOf(Fields& fields, const char* key, bool closed, bool smoothByDefault) {
  std::vector<Vec> points = fields.points(key);
  if (!fields.flag("smooth", smoothByDefault)) return points;
  return smoothCurve(points, std::clamp(fields.integer("steps", 4), 1, 64), closed);
}

Mesh latheShape(Fields& fields) {
  const bool closed = fields.flag("closed", false);
  std::vector<Vec> profile = curveOf(fields, "lathe", closed, true);
  for (Vec& point : profile) point.x = std::max(point.x, 0.0);
  return makeLathe(profile, closed, segmentsOf(fields, "segments", 28));
}

Mesh extrusionShape(Fields& fields) {
  const std::vector<Vec> outline = curveOf(fields, "extrude", true, false);
  try {
    return makeExtrusion(outline, positive(fields, "depth"), fields.number("bevel", 0));
  } catch (const std::invalid_argument& error) {
    fields.fail(error.what());
  }
}

Mesh tubeShape(Fields& fields) {
  const bool closed = fields.flag("closed", false);
  const std::vector<Vec> path = curveOf(fields, "tube", closed, true);
  const std::vector<double> radii =
      fields.has("radii") ? fields.numbers("radii") : std::vector{fields.number("radius")};
  if (radii.empty()) fields.fail("\"radii\" is empty");
  return makeTube(path, radiiAlong(radii, path.size()), closed, segmentsOf(fields, "sides", 10));
}

/// Narrows a shape towards its upper end: `taper` is the size there, with 1 at the lower end.
void narrow(Mesh& mesh, const Vec& taper) {
  if (mesh.points.empty()) return;
  const auto [lowest, highest] =
      std::ranges::minmax_element(mesh.points, [](const Vec& a, const Vec& b) { return a.y < b.y; });
  const double bottom = lowest->y, height = highest->y - lowest->y;
  for (Vec& point : mesh.points) {
    const double t = height > 0 ? (point.y - bottom) / height : 0;
    point.x *= 1 + (taper.x - 1) * t;
    point.z *= 1 + (taper.z - 1) * t;
  }
}

struct ShapeKind {
  const char* key;
  Mesh (*make)(Fields&);
};

constexpr ShapeKind shapeKinds[] = {{"box", boxShape},           {"sphere", sphereShape}, {"cylinder", cylinderShape},
                                    {"cone", coneShape},         {"torus", torusShape},   {"lathe", latheShape},
                                    {"extrude", extrusionShape}, {"tube", tubeShape},     {"blob", blobShape}};

}  // namespace

std::optional<Mesh> describedShape(Fields& fields) {
  const auto kind = std::ranges::find_if(shapeKinds, [&](const ShapeKind& k) { return fields.has(k.key); });
  if (kind == std::end(shapeKinds)) return std::nullopt;
  Mesh mesh = kind->make(fields);
  if (fields.has("taper")) narrow(mesh, fields.vec("taper", {}));
  return mesh;
}

}  // namespace nerida::library

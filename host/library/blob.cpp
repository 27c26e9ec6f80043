#include "host/library/blob.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "host/library/curves.h"
#include "host/library/placement.h"
#include "host/library/surface_nets.h"

namespace nerida::library {
namespace {

/// What a blob is made of: an ellipsoid given by its axes, or a row of round pieces.
struct Piece {
  Vec centre;
  std::array<Vec, 3> axes;  ///< of an ellipsoid: half its length along each
  std::vector<Vec> path;    ///< of a row; an ellipsoid has none
  std::vector<double> radii;
};

double distanceToEllipsoid(const Piece& piece, const Vec& point) {
  const Vec offset = point - piece.centre;
  double square = 0;
  Vec slope;
  for (const Vec& axis : piece.axes) {
    const double along = dot(offset, axis) / dot(axis, axis);
    square += along * along;
    slope = slope + axis * (along / dot(axis, axis));
  }
  const double share = std::sqrt(square), steepness = length(slope);
  // At the very middle there is no direction; anything well inside will do.
  if (steepness < 1e-9) return -std::min({length(piece.axes[0]), length(piece.axes[1]), length(piece.axes[2])});
  return share * (share - 1) / steepness;
}

double distanceToRow(const Piece& piece, const Vec& point) {
  double nearest = std::numeric_limits<double>::max();
  for (std::size_t i = 0; i + 1 < piece.path.size(); ++i) {
    const Vec way = piece.path[i + 1] - piece.path[i];
    const double reach = dot(way, way);
    const double t = reach > 0 ? std::clamp(dot(point - piece.path[i], way) / reach, 0.0, 1.0) : 0;
    const double radius = piece.radii[i] + (piece.radii[i + 1] - piece.radii[i]) * t;
    nearest = std::min(nearest, length(point - piece.path[i] - way * t) - radius);
  }
  return nearest;
}

/// The smaller of two distances, rounded off where they are about the same.
double softMinimum(double a, double b, double softness) {
  if (softness <= 0) return std::min(a, b);
  const double mix = std::max(softness - std::abs(a - b), 0.0) / softness;
  return std::min(a, b) - mix * mix * softness / 4;
}

Piece ellipsoid(Fields& fields, const Transform& placement) {
  const bool three = fields.raw("sphere").is_array();
  const double radius = three ? 0 : fields.number("sphere");
  const Vec radii = three ? fields.vec("sphere", {}) : Vec{radius, radius, radius};
  if (!(radii.x > 0 && radii.y > 0 && radii.z > 0)) fields.fail("a ball needs radii greater than 0");
  Piece piece;
  piece.centre = placement.apply({});
  piece.axes = {placement.apply({radii.x, 0, 0}) - piece.centre, placement.apply({0, radii.y, 0}) - piece.centre,
                placement.apply({0, 0, radii.z}) - piece.centre};
  return piece;
}

Piece row(Fields& fields, const Transform& placement) {
  Piece piece;
  std::vector<Vec> points = fields.points("tube");
  if (fields.flag("smooth", true)) points = smoothCurve(points, 3, false);
  for (const Vec& point : points) piece.path.push_back(placement.apply(point));
  const std::vector<double> radii = fields.numbers("radii");
  if (radii.empty()) fields.fail("\"radii\" is empty");
  piece.radii = radiiAlong(radii, points.size());
  return piece;
}

std::vector<Piece> blobPieces(Fields& fields) {
  std::vector<Piece> pieces;
  for (const nlohmann::json& child : fields.raw("of")) {
    Fields part(child, fields.where());
    part.integer("line", 0);
    for (const char* detail : {"segments", "sides"}) part.integer(detail, 0);  // a blob has a detail of its own
    const Transform own = Transform::shift(part.vec("at", {})) *
                          Transform::turn(quaternionOfTurn(part.vec("turn", {}))) * Transform::scale(sizeOf(part));
    for (const Transform& copy : copiesOf(part)) {
      pieces.push_back(part.has("tube") ? row(part, copy * own) : ellipsoid(part, copy * own));
    }
    part.close();
  }
  if (pieces.empty()) fields.fail("a blob needs balls or tubes");
  return pieces;
}

struct Bounds {
  static constexpr double far = std::numeric_limits<double>::max();
  Vec low{far, far, far}, high{-far, -far, -far};

  void add(const Vec& point, const Vec& reach) {
    low = {std::min(low.x, point.x - reach.x), std::min(low.y, point.y - reach.y), std::min(low.z, point.z - reach.z)};
    high = {std::max(high.x, point.x + reach.x), std::max(high.y, point.y + reach.y),
            std::max(high.z, point.z + reach.z)};
  }

  void add(const Piece& piece) {
    for (std::size_t i = 0; i < piece.path.size(); ++i) {
      add(piece.path[i], {piece.radii[i], piece.radii[i], piece.radii[i]});
    }
    if (!piece.path.empty()) return;
    const auto reach = [&](double Vec::*axis) {
      return std::hypot(piece.axes[0].*axis, piece.axes[1].*axis, piece.axes[2].*axis);
    };
    add(piece.centre, {reach(&Vec::x), reach(&Vec::y), reach(&Vec::z)});
  }
};

}  // namespace

Mesh blobShape(Fields& fields) {
  const double softness = fields.number("blob");
  const std::vector<Piece> pieces = blobPieces(fields);
  const int cells = std::clamp(fields.integer("segments", 24), 8, 96);
  Bounds bounds;
  for (const Piece& piece : pieces) bounds.add(piece);
  const Vec margin = Vec{softness, softness, softness} * 0.25;
  const Distance distance = [&](const Vec& point) {
    double result = std::numeric_limits<double>::max();
    for (const Piece& piece : pieces) {
      const double next = piece.path.empty() ? distanceToEllipsoid(piece, point) : distanceToRow(piece, point);
      result = softMinimum(result, next, softness);
    }
    return result;
  };
  return meshOf(distance, bounds.low - margin, bounds.high + margin, cells);
}

}  // namespace nerida::library

#include "host/library/surface_nets.h"

#include <algorithm>
#include <cmath>

namespace nerida::library {
namespace {

using Cell = std::array<int, 3>;

constexpr std::uint32_t nothing = 0xFFFFFFFFU;

/// One point in each cell that the surface passes through, one quad for each grid edge that pierces it.
class Net {
 public:
  Net(const Distance& solid, const Vec& low, const Vec& high, int cells) : distance(solid) {
    const Vec extent = high - low;
    edge = std::max({extent.x, extent.y, extent.z}) / cells;
    origin = low - Vec{edge, edge, edge} * 1.5;
    const auto along = [&](double length) { return static_cast<int>(std::ceil(length / edge)) + 4; };
    size = {along(extent.x), along(extent.y), along(extent.z)};
  }

  Mesh mesh() {
    sample();
    addPoints();
    addQuads();
    for (Vec& point : net.points) settle(point);
    return std::move(net);
  }

 private:
  [[nodiscard]] std::size_t index(const Cell& c) const {
    return (static_cast<std::size_t>(c[2]) * static_cast<std::size_t>(size[1]) + static_cast<std::size_t>(c[1])) *
               static_cast<std::size_t>(size[0]) +
           static_cast<std::size_t>(c[0]);
  }

  [[nodiscard]] Vec place(const Cell& c) const {
    return origin + Vec{static_cast<double>(c[0]), static_cast<double>(c[1]), static_cast<double>(c[2])} * edge;
  }

  template <class Visit>
  void forEach(int margin, const Visit& visit) const {
    for (int z = 0; z < size[2] - margin; ++z) {
      for (int y = 0; y < size[1] - margin; ++y) {
        for (int x = 0; x < size[0] - margin; ++x) visit(Cell{x, y, z});
      }
    }
  }

  void sample() {
    const Cell beyond{0, 0, size[2]};
    values.resize(index(beyond));
    forEach(0, [&](const Cell& c) { values[index(c)] = distance(place(c)); });
  }

  static Cell corner(const Cell& c, int number) {
    return {c[0] + (number & 1), c[1] + (number >> 1 & 1), c[2] + (number >> 2 & 1)};
  }

  void addPoints() {
    points.assign(values.size(), nothing);
    forEach(1, [&](const Cell& c) {
      Vec sum;
      int crossings = 0;
      for (int from = 0; from < 8; ++from) {
        for (const int axis : {1, 2, 4}) {
          if ((from & axis) != 0) continue;
          const Cell a = corner(c, from), b = corner(c, from | axis);
          const double va = values[index(a)], vb = values[index(b)];
          if ((va < 0) == (vb < 0)) continue;
          sum = sum + place(a) + (place(b) - place(a)) * (va / (va - vb));
          ++crossings;
        }
      }
      if (crossings > 0) points[index(c)] = net.add(sum * (1.0 / crossings));
    });
  }

  void addQuads() {
    forEach(1, [&](const Cell& c) {
      for (std::size_t axis = 0; axis < 3; ++axis) addQuad(c, axis);
    });
  }

  void addQuad(const Cell& c, std::size_t axis) {
    Cell next = c;
    ++next[axis];
    const bool inside = values[index(c)] < 0;
    if (inside == (values[index(next)] < 0)) return;
    const std::size_t u = (axis + 1) % 3, v = (axis + 2) % 3;
    const auto at = [&](int du, int dv) {
      Cell cell = c;
      cell[u] -= du;
      cell[v] -= dv;
      return points[index(cell)];
    };
    const std::uint32_t a = at(0, 0), b = at(1, 0), d = at(0, 1), opposite = at(1, 1);
    if (inside) {
      net.addQuad(opposite, d, a, b);
    } else {
      net.addQuad(opposite, b, a, d);
    }
  }

  /// Draws a point of the net onto the surface itself.
  void settle(Vec& point) const {
    const double small = edge * 0.02;
    for (int round = 0; round < 3; ++round) {
      const double here = distance(point);
      const Vec slope{(distance(point + Vec{small, 0, 0}) - here) / small,
                      (distance(point + Vec{0, small, 0}) - here) / small,
                      (distance(point + Vec{0, 0, small}) - here) / small};
      const double steepness = dot(slope, slope);
      if (steepness < 1e-6) return;
      point = point - slope * std::clamp(here / steepness, -edge / 2, edge / 2);
    }
  }

  const Distance& distance;
  double edge = 1;
  Vec origin;
  Cell size{};
  std::vector<double> values;
  std::vector<std::uint32_t> points;
  Mesh net;
};

}  // namespace

Mesh meshOf(const Distance& distance, const Vec& low, const Vec& high, int cells) {
  return Net(distance, low, high, cells).mesh();
}

}  // namespace nerida::library

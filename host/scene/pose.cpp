#include <algorithm>

#include "host/scene/model_content.h"

namespace nerida {
namespace {

Quaternion operator+(Quaternion a, Quaternion b) { return {a.x + b.x, a.y + b.y, a.z + b.z, a.w + b.w}; }
Quaternion operator*(Quaternion a, float s) { return {a.x * s, a.y * s, a.z * s, a.w * s}; }
float dot(Quaternion a, Quaternion b) { return a.x * b.x + a.y * b.y + a.z * b.z + a.w * b.w; }

Quaternion normalized(Quaternion q) {
  const float size = std::sqrt(dot(q, q));
  return size > 0 ? q * (1 / size) : Quaternion{};
}

/// Along the shorter arc, at even speed.
Quaternion turnBetween(Quaternion a, Quaternion b, float t) {
  float cosine = dot(a, b);
  if (cosine < 0) {
    b = b * -1;
    cosine = -cosine;
  }
  constexpr float nearlySame = 0.9995F;
  if (cosine > nearlySame) return normalized(a * (1 - t) + b * t);
  const float angle = std::acos(cosine);
  return (a * std::sin((1 - t) * angle) + b * std::sin(t * angle)) * (1 / std::sin(angle));
}

Quaternion splineBetween(const Track& track, std::size_t key, float t, float span) {
  const Quaternion from = track.values[key * 3 + 1], leaving = track.values[key * 3 + 2];
  const Quaternion arriving = track.values[key * 3 + 3], to = track.values[key * 3 + 4];
  const float t2 = t * t, t3 = t2 * t;
  return from * (2 * t3 - 3 * t2 + 1) + leaving * (span * (t3 - 2 * t2 + t)) + to * (3 * t2 - 2 * t3) +
         arriving * (span * (t3 - t2));
}

Quaternion keyValue(const Track& track, std::size_t key) {
  return track.interpolation == Interpolation::cubic ? track.values[key * 3 + 1] : track.values[key];
}

Quaternion valueAt(const Track& track, float seconds) {
  const auto& times = track.times;
  const auto after = static_cast<std::size_t>(std::upper_bound(times.begin(), times.end(), seconds) - times.begin());
  if (after == 0) return keyValue(track, 0);
  const std::size_t key = after - 1;
  if (after == times.size() || track.interpolation == Interpolation::step) return keyValue(track, key);
  const float span = times[after] - times[key];
  const float t = (seconds - times[key]) / span;
  if (track.interpolation == Interpolation::cubic) return splineBetween(track, key, t, span);
  const Quaternion from = track.values[key], to = track.values[after];
  return track.movement == Movement::rotation ? turnBetween(from, to, t) : from * (1 - t) + to * t;
}

void move(Node& node, const Track& track, float seconds) {
  const Quaternion value = valueAt(track, seconds);
  switch (track.movement) {
    case Movement::translation:
      node.translation = {value.x, value.y, value.z};
      break;
    case Movement::rotation:
      node.rotation = normalized(value);
      break;
    case Movement::scale:
      node.scale = {value.x, value.y, value.z};
      break;
  }
}

Affine placeOf(const Node& node) {
  if (node.matrix) return *node.matrix;
  const auto [x, y, z, w] = node.rotation;
  const Vec3 s = node.scale;
  const Mat3 turned{{s.x * (1 - 2 * (y * y + z * z)), s.y * 2 * (x * y - z * w), s.z * 2 * (x * z + y * w)},
                    {s.x * 2 * (x * y + z * w), s.y * (1 - 2 * (x * x + z * z)), s.z * 2 * (y * z - x * w)},
                    {s.x * 2 * (x * z - y * w), s.y * 2 * (y * z + x * w), s.z * (1 - 2 * (x * x + y * y))}};
  return {turned, node.translation};
}

float determinant(const Mat3& m) { return dot(m.rowX, cross(m.rowY, m.rowZ)); }

/// For directions across a surface, which a stretched shape turns the other way round than its points.
Mat3 normalMap(const Mat3& m) {
  const Mat3 cofactors{cross(m.rowY, m.rowZ), cross(m.rowZ, m.rowX), cross(m.rowX, m.rowY)};
  const float sign = determinant(m) < 0 ? -1.0F : 1.0F;
  return {cofactors.rowX * sign, cofactors.rowY * sign, cofactors.rowZ * sign};
}

std::vector<Affine> nodePlaces(const ModelContent& content, double seconds, const Affine& root) {
  std::vector<Node> nodes = content.nodes;
  for (const Track& track : content.tracks) {
    move(nodes[static_cast<std::size_t>(track.node)], track, static_cast<float>(seconds));
  }
  std::vector<Affine> places(nodes.size());
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    const Affine& parent = nodes[i].parent < 0 ? root : places[static_cast<std::size_t>(nodes[i].parent)];
    places[i] = parent * placeOf(nodes[i]);
  }
  return places;
}

void poseRigid(ModelContent& content, Part& part, const Affine& place) {
  part.mirrored = determinant(place.linear) < 0;
  const Mat3 normals = normalMap(place.linear);
  for (std::size_t i = part.first; i < part.first + part.count; ++i) {
    content.mesh.positions[i] = place * content.positions[i];
    content.mesh.normals[i] = normalized(normals * content.normals[i]);
  }
}

Affine weightedSum(const std::vector<Affine>& bones, const Pull& pull) {
  Affine sum{{{0, 0, 0}, {0, 0, 0}, {0, 0, 0}}, {}};
  for (std::size_t i = 0; i < pull.joints.size(); ++i) {
    const Affine& bone = bones[pull.joints[i]];
    const float weight = pull.weights[i];
    sum.linear.rowX = sum.linear.rowX + bone.linear.rowX * weight;
    sum.linear.rowY = sum.linear.rowY + bone.linear.rowY * weight;
    sum.linear.rowZ = sum.linear.rowZ + bone.linear.rowZ * weight;
    sum.offset = sum.offset + bone.offset * weight;
  }
  return sum;
}

void poseSkinned(ModelContent& content, const Part& part, const std::vector<Affine>& places) {
  const Skin& skin = content.skins[static_cast<std::size_t>(part.skin)];
  std::vector<Affine> bones(skin.joints.size());
  for (std::size_t i = 0; i < bones.size(); ++i) {
    bones[i] = places[static_cast<std::size_t>(skin.joints[i])] * skin.inverseBinds[i];
  }
  for (std::size_t i = 0; i < part.count; ++i) {
    const Affine place = weightedSum(bones, content.pulls[part.firstPull + i]);
    content.mesh.positions[part.first + i] = place * content.positions[part.first + i];
    content.mesh.normals[part.first + i] = normalized(normalMap(place.linear) * content.normals[part.first + i]);
  }
}

}  // namespace

void pose(ModelContent& content, double seconds, const Affine& root) {
  const std::vector<Affine> places = nodePlaces(content, seconds, root);
  for (Part& part : content.parts) {
    if (part.skin >= 0) {
      poseSkinned(content, part, places);
    } else {
      poseRigid(content, part, places[static_cast<std::size_t>(part.node)]);
    }
  }
}

}  // namespace nerida

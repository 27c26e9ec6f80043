#include "host/library/motion.h"

#include <cmath>
#include <numbers>

namespace nerida::library {
namespace {

struct Key {
  double frame = 0;
  Vec value;
};

/// Times are multiplied by `unit`.
std::vector<Key> keysOf(Fields& fields, const char* name, double unit) {
  std::vector<Key> keys;
  for (const nlohmann::json& entry : fields.raw(name)) {
    const bool fits = entry.is_array() && entry.size() == 2 && entry[0].is_number() && entry[1].is_array() &&
                      entry[1].size() == 3 && (keys.empty() || entry[0].get<double>() * unit > keys.back().frame);
    if (!fits) fields.fail(std::string("\"") + name + "\" needs [frame, [x, y, z]] in rising order of frames");
    const auto value = entry[1].get<std::array<double, 3>>();
    keys.push_back({entry[0].get<double>() * unit, {value[0], value[1], value[2]}});
  }
  return keys;
}

/// Keys by frame, or by shares of the whole animation.
std::vector<Key> keysOf(Fields& fields, const char* byFrame, const char* byShare, int frames) {
  if (fields.has(byFrame)) return keysOf(fields, byFrame, 1);
  return fields.has(byShare) ? keysOf(fields, byShare, frames) : std::vector<Key>();
}

Vec valueAt(const std::vector<Key>& keys, double frame, bool soft) {
  if (keys.empty()) return {};
  std::size_t next = 0;
  while (next < keys.size() && keys[next].frame <= frame) ++next;
  if (next == 0) return keys.front().value;
  if (next == keys.size()) return keys.back().value;
  const Key &from = keys[next - 1], &to = keys[next];
  double t = (frame - from.frame) / (to.frame - from.frame);
  if (soft) t = (1 - std::cos(std::numbers::pi * t)) / 2;
  return from.value + (to.value - from.value) * t;
}

/// A quaternion and its negative are the same turn; interpolation needs the nearer one.
Quaternion nearer(const Quaternion& turn, const std::vector<Quaternion>& before) {
  if (before.empty()) return turn;
  const Quaternion& last = before.back();
  const double cosine = turn.x * last.x + turn.y * last.y + turn.z * last.z + turn.w * last.w;
  return cosine < 0 ? Quaternion{-turn.x, -turn.y, -turn.z, -turn.w} : turn;
}

}  // namespace

Motion describedMotion(const nlohmann::json& animate, const std::string& where, int frames, const Vec& restPlace,
                       const Quaternion& restTurn) {
  Fields fields(animate, where + ", animate");
  if (frames < 2) fields.fail("the model has no \"frames\"");
  const std::vector<Key> turns = keysOf(fields, "turn", "turnShares", frames);
  const std::vector<Key> shifts = keysOf(fields, "move", "moveShares", frames);
  const bool soft = fields.text("ease", "none") == "soft";
  fields.close();
  Motion motion;
  for (int frame = 0; frame < frames; ++frame) {
    motion.places.push_back(restPlace + valueAt(shifts, frame, soft));
    motion.turns.push_back(nearer(restTurn * quaternionOfTurn(valueAt(turns, frame, soft)), motion.turns));
  }
  return motion;
}

}  // namespace nerida::library

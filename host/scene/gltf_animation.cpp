#include <algorithm>
#include <optional>

#include "host/scene/gltf_reader.h"
#include "host/scene/gltf_values.h"

namespace nerida {
namespace {

constexpr int mostFrames = 32'767;  // the frame number is a 16-bit one to those who ask for it

std::optional<Movement> movementOf(const std::string& path) {
  if (path == "translation") return Movement::translation;
  if (path == "rotation") return Movement::rotation;
  if (path == "scale") return Movement::scale;
  return {};
}

Interpolation interpolationOf(const std::string& name) {
  if (name == "STEP") return Interpolation::step;
  return name == "CUBICSPLINE" ? Interpolation::cubic : Interpolation::linear;
}

void readKeys(const tinygltf::Model& source, const tinygltf::AnimationSampler& sampler, Track& track) {
  const Values times(source, sampler.input, 1);
  const Values values(source, sampler.output, track.movement == Movement::rotation ? 4 : 3);
  const std::size_t perTime = track.interpolation == Interpolation::cubic ? 3 : 1;
  if (values.count() / perTime < times.count()) throw ModelError("The model's animation is missing some of its steps.");
  for (std::size_t i = 0; i < times.count(); ++i) track.times.push_back(times.number(i, 0));
  for (std::size_t i = 0; i < times.count() * perTime; ++i) {
    if (track.movement == Movement::rotation) {
      track.values.push_back(values.quaternion(i));
    } else {
      const Vec3 v = values.vec3(i);
      track.values.push_back({v.x, v.y, v.z, 0});
    }
  }
}

void checkKeys(const Track& track) {
  const bool ascending = std::adjacent_find(track.times.begin(), track.times.end(),
                                            [](float a, float b) { return !(a < b); }) == track.times.end();
  const bool finite = std::all_of(track.times.begin(), track.times.end(), [](float t) { return std::isfinite(t); }) &&
                      std::all_of(track.values.begin(), track.values.end(), [](Quaternion q) {
                        return isFinite({q.x, q.y, q.z}) && std::isfinite(q.w);
                      });
  if (!ascending || !finite) throw ModelError("The model's animation is damaged.");
}

double wantedFrameRate(const tinygltf::Model& source, double otherwise) {
  const tinygltf::Value& extras = source.asset.extras;
  if (!extras.IsObject() || !extras.Has("framesPerSecond")) return otherwise;
  const tinygltf::Value& rate = extras.Get("framesPerSecond");
  if (!rate.IsNumber()) return otherwise;
  const double number = rate.GetNumberAsDouble();
  return number >= 1 && number <= 120 ? number : otherwise;
}

void countFrames(ModelContent& content) {
  double seconds = 0;
  for (const Track& track : content.tracks) seconds = std::max(seconds, static_cast<double>(track.times.back()));
  if (seconds <= 0) return;  // a pose, no movement
  content.frameRate = std::min(content.frameRate, (mostFrames - 1) / std::max(seconds, 1.0));
  content.frameCount = static_cast<int>(std::lround(seconds * content.frameRate)) + 1;
}

/// What moves something else than nodes leaves no track.
void readTracks(const tinygltf::Model& source, const tinygltf::Animation& animation,
                const std::vector<int>& nodeNumbers, ModelContent& content) {
  for (const tinygltf::AnimationChannel& channel : animation.channels) {
    const auto movement = movementOf(channel.target_path);
    if (!movement || channel.target_node < 0) continue;
    const tinygltf::AnimationSampler& sampler = elementAt(animation.samplers, channel.sampler);
    Track track{elementAt(nodeNumbers, channel.target_node), *movement, interpolationOf(sampler.interpolation), {}, {}};
    readKeys(source, sampler, track);
    checkKeys(track);
    if (track.node >= 0 && !track.times.empty()) content.tracks.push_back(std::move(track));
  }
}

}  // namespace

void readAnimation(const tinygltf::Model& source, const std::vector<int>& nodeNumbers, ModelContent& content) {
  content.frameRate = wantedFrameRate(source, content.frameRate);
  for (const tinygltf::Animation& animation : source.animations) {
    readTracks(source, animation, nodeNumbers, content);
    if (content.tracks.empty()) continue;
    countFrames(content);
    return;
  }
}

}  // namespace nerida

#include "host/scene/scene.h"

#include <algorithm>
#include <cmath>

namespace nerida {
namespace {

constexpr int anglePerStep = 375;     // the toolbar sends two steps: twelve presses are a quarter turn
constexpr float movePerStep = 0.05F;  // of half the picture
constexpr float farthestMove = 2.0F;
constexpr double growthPerStep = 1.1;
constexpr float smallestScale = 0.05F, largestScale = 20.0F;
constexpr int mostSteps = 1000;  // keeps nonsense out of the arithmetic

// From a little above, the front towards the lamp: three sides of a thing tell more than one.
constexpr Orientation homeOrientation{36'000 - 1'800, 3'000, 0};

int sane(int steps) { return std::clamp(steps, -mostSteps, mostSteps); }

float moved(float offset, int steps) {
  return std::clamp(offset - static_cast<float>(sane(steps)) * movePerStep, -farthestMove, farthestMove);
}

std::string fileTitle(const std::filesystem::path& file) {
  const auto title = file.stem().u8string();
  return {title.begin(), title.end()};
}

}  // namespace

Scene::Scene() : style(&lookStyles().front()) { resetHome(); }

void Scene::load(const std::filesystem::path& newFile) {
  model = Model::load(newFile);
  file = newFile;
  if (name.empty()) name = fileTitle(newFile);
  animation.reset(model->frameCount(), model->frameRate());
  resetHome();
}

void Scene::unload() {
  model.reset();
  file.clear();
  animation.reset(0, 0);
  resetHome();
}

int Scene::modelScale() const { return static_cast<int>(std::lround(scale * 100)); }

void Scene::setModelScale(int percent) {
  scale = std::clamp(static_cast<float>(percent) / 100, smallestScale, largestScale);
}

void Scene::scaleModel(int steps) {
  const double factor = std::pow(growthPerStep, sane(steps));
  scale = static_cast<float>(std::clamp(scale * factor, double{smallestScale}, double{largestScale}));
}

void Scene::moveX(int steps) { offsetX = moved(offsetX, steps); }
void Scene::moveY(int steps) { offsetY = moved(offsetY, steps); }

void Scene::resetHome() {
  scale = 1;
  offsetX = offsetY = 0;
  rotation = rotationOf(homeOrientation);
}

void Scene::rotateX(int steps) { turn(tiltUp(sane(steps) * anglePerStep)); }
void Scene::rotateY(int steps) { turn(turnLeft(sane(steps) * anglePerStep)); }
void Scene::rotateZ(int steps) { turn(turnClockwise(sane(steps) * anglePerStep)); }
void Scene::turnBy(int up, int left) { turn(tiltUp(up) * turnLeft(left)); }
void Scene::turn(const Mat3& step) { rotation = straightened(step * rotation); }

void Scene::setOrientation(int x, int y, int z) { rotation = rotationOf({x, y, z}); }
Orientation Scene::orientation() const { return orientationOf(rotation); }

std::vector<std::string> Scene::lookStyleNames() {
  std::vector<std::string> names;
  for (const LookStyle& each : lookStyles()) names.emplace_back(each.name);
  return names;
}

std::string Scene::lookStyleName() const { return customStyle ? "none" : std::string(style->name); }

bool Scene::setLookStyle(const std::string& styleName) {
  const LookStyle* wanted = styleName.empty() ? style : findLookStyle(styleName);
  if (wanted == nullptr) return false;
  style = wanted;
  customStyle = styleName.empty();
  return true;
}

void Scene::setLineThicknessScale(int percent) { lineThickness = std::clamp(percent, 50, 300); }

void Scene::setLightDirection(LightDirection direction) {
  const auto limited = [](int part) { return std::clamp(part, -100, 100); };
  light = {limited(direction.x), limited(direction.y), limited(direction.z)};
}

void Scene::render(Picture& target) {
  static const Mesh nothing;
  Look look{style, surface.explicitColor(), line.explicitColor(), background.explicitColor(), lineThickness, {}};
  const Vec3 towardsLamp{static_cast<float>(light.x), static_cast<float>(light.y), static_cast<float>(light.z)};
  look.light = {lightIsOn, towardsLamp};
  const Mesh& mesh = model ? model->meshAt(animation.currentFrame()) : nothing;
  renderer.draw(mesh, {rotation, scale, offsetX, offsetY}, look, target);
}

}  // namespace nerida

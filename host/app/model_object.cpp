#include "host/app/model_object.h"

#include "host/app/model_title.h"
#include "host/render/style.h"

namespace nerida::host {

void ModelObject::setName(std::string name) {
  scene.setModelName(std::move(name));
  site.modelLoaded();
}

void ModelObject::load(const std::filesystem::path& file) {
  try {
    scene.load(file);
  } catch (...) {
    scene.setModelName(loadedName);
    throw;
  }
  loadedName = scene.modelName();
  site.modelLoaded();
  site.displayChanged();
  site.animationChanged();
}

void ModelObject::open(const std::filesystem::path& file) {
  scene.setModelName(findModelTitle(file));
  load(file);
}

int ModelObject::interfaceFlags() const {
  constexpr int surfaceColor = 1, lineColor = 2, lineThickness = 4 | 16;
  const LookStyle* style = findLookStyle(scene.lookStyleName());
  if (style == nullptr) return surfaceColor | lineColor | lineThickness;
  return (style->usesSurface() ? surfaceColor : 0) | (style->usesLines() ? lineColor | lineThickness : 0);
}

void ModelObject::animated() {
  site.displayChanged();
  site.animationChanged();
}

}  // namespace nerida::host

#include "host/preview/preview.h"

namespace nerida::host {

void Preview::load() {
  if (modelFile.empty()) {
    scene.unload();
  } else {
    scene.load(std::filesystem::path(modelFile));
    scene.animation.setLooping(true);
    scene.animation.setPlaying(true);
  }
  changed();
}

}  // namespace nerida::host

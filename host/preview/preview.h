#pragma once

#include <string>

#include "host/scene/scene.h"

namespace nerida::host {

/// Told when the picture of a preview is out of date, or its animation may have started or stopped.
class PreviewListener {
 public:
  virtual ~PreviewListener() = default;
  virtual void previewChanged() = 0;
};

/// A model file being looked at: what it is, how it stands, and how it is drawn.
class Preview {
 public:
  explicit Preview(PreviewListener& listener) : listener(listener) {}

  Scene scene;
  std::wstring modelFile;  ///< full path; takes effect with load()
  std::wstring modelName;  ///< as it is called where it was chosen

  /// Shows the model file: home, in the style that was shown before; an animated one plays. An empty file shows
  /// nothing. Throws ModelError; what was shown before then stays.
  void load();
  /// Whether there is something to play.
  [[nodiscard]] bool moves() const { return scene.animation.advancing(); }
  void changed() { listener.previewChanged(); }

 private:
  PreviewListener& listener;
};

}  // namespace nerida::host

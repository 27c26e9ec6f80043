#pragma once

#include <filesystem>
#include <string>

#include "host/scene/scene.h"

namespace nerida::host {

/// What the embedded object tells the document that it lives in. Called from inside the object's members, so answer
/// quickly and show nothing that waits for the user.
class ModelSite {
 public:
  virtual ~ModelSite() = default;
  virtual void displayChanged() = 0;    ///< the picture is out of date
  virtual void animationChanged() = 0;  ///< the animation may have started or stopped
  virtual void modelLoaded() = 0;       ///< another model, or another name
  virtual void catalogDone() = 0;       ///< the catalog has closed
};

/// The embedded object: its scene, and what it knows of the windows that are showing for it.
class ModelObject {
 public:
  explicit ModelObject(ModelSite& site) : site(site) {}

  Scene scene;
  bool toolbarShowing = false;
  bool catalogShowing = false;

  /// Empty as long as there is no model, whatever name was prepared for one.
  [[nodiscard]] std::string name() const { return scene.hasModel() ? scene.modelName() : std::string(); }
  void setName(std::string name);
  /// Under the name that was set, or the file's when there is none. Throws ModelError; the old model then keeps its
  /// name as well.
  void load(const std::filesystem::path& file);
  /// Under the name that its library gives it, else the file's. Throws ModelError.
  void open(const std::filesystem::path& file);

  /// Which parts of the picture the current style lets the user change: 1 the surface colour, 2 the line colour,
  /// 4 and 16 the line thickness.
  [[nodiscard]] int interfaceFlags() const;

  void changed() { site.displayChanged(); }
  void animated();
  void catalogClosed() { site.catalogDone(); }

 private:
  ModelSite& site;
  std::string loadedName;  ///< what the current model is called
};

}  // namespace nerida::host

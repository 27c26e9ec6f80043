#pragma once

namespace nerida {

// What the toolbar needs of the model catalog.
class CatalogWindow {
 public:
  virtual ~CatalogWindow() = default;
  virtual void ShowSelf() = 0;
  virtual void ShowHelpFile() = 0;
};

}  // namespace nerida

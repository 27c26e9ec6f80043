#pragma once

#include "core/model_object.h"
#include "core/paths.h"
#include "popups/popup.h"

namespace nerida {

// The menu of line thicknesses.
class frmLineThicknessMenu : public Popup {
 public:
  frmLineThicknessMenu(State& state, WindowFactory& windows, Desktop& desktop, const Paths& paths, PopupOpener& opener);

  void ShowSelf(std::int16_t x, std::int16_t y) override;
  void HideSelf() override;
  // The thickness that was chosen last, or found at the last opening. The two thickest have numbers of their own here,
  // 200 and 300, while the model is sent 150 and 200.
  std::int32_t GetSelection() const { return selection; }

 protected:
  void Form_Load() override;

 private:
  ButtonBar& barThick() { return loadedWindow().buttonBar("barThick"); }
  void buildBar();
  void connectEvents();
  void showCurrentThickness();
  bool enterBar();

  void barThick_ButtonPress(const std::string& key);

  ModelObject model;
  const Paths& paths;
  std::int32_t selection = 0;
};

}  // namespace nerida

#pragma once

#include "core/model_object.h"
#include "core/paths.h"
#include "popups/lighting_table.h"
#include "popups/popup.h"

namespace nerida {

// The picker of the light's direction and its switch. It stays open after a choice, so that several directions can be
// tried.
class frmLighting : public Popup {
 public:
  frmLighting(State& state, WindowFactory& windows, Desktop& desktop, const Paths& paths, Messages& messages,
              PopupOpener& opener);

  void ShowSelf(std::int16_t x, std::int16_t y) override;
  void HideSelf() override;
  // Both tell the model and raise its errors.
  void TurnOffTheLights();
  void TurnOnTheLights();

 protected:
  void Form_Load() override;

 private:
  ButtonBar& barLamp(int index) { return loadedWindow().buttonBar("barLamp", index); }
  ButtonBar& barSwitch() { return loadedWindow().buttonBar("barSwitch"); }

  void connectEvents();
  void makeSettings(ButtonBar& bar);
  void buildLampBar(int index);
  void addLamps(int bar, std::span<const LampButton> buttons);
  void buildCentreBar();
  void buildSwitch();
  void addSwitch(const char* layout, const char* key, const char* bitmapSpec, const char* tooltip);

  void showLampBars(const char* layout);
  void showModelsLight();
  void choose(const Lamp& lamp);
  void preview(const Lamp& lamp) { barLamp(centreBar).showLayout(lamp.centreLayout); }
  bool moveFocus(const Lamp& from, Key arrow);

  bool enterLamps();

  void barLamp_ButtonPress(const std::string& key);
  void barLamp_ButtonMouseMove(int index, const std::string& key);
  void barLamp_LostFocus(int index);
  void barSwitch_ButtonPress(const std::string& key);
  void Form_MouseMove();
  void leave();

  ModelObject model;
  const Paths& paths;
  Messages& messages;
  bool usable = false;  // Form_Load came to its end
  bool lightIsOn = false;
  const Lamp* current = lampOf("M");
};

}  // namespace nerida

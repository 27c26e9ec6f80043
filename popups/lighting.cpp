#include "popups/lighting.h"

#include <algorithm>

#include "popups/popup_layouts.h"

namespace nerida {
namespace {

// The lamp beside another one on the keypad of lamps; at its edge the same one.
const Lamp& neighbour(const Lamp& from, Key arrow) {
  const auto step = [](std::int32_t place, bool back, bool forward) {
    return std::clamp(place + (forward ? 100 : 0) - (back ? 100 : 0), -100, 100);
  };
  return lampToward(step(from.direction.x, arrow == Key::left, arrow == Key::right),
                    step(from.direction.y, arrow == Key::up, arrow == Key::down));
}

}  // namespace

frmLighting::frmLighting(State& state, WindowFactory& windows, Desktop& desktop, const Paths& paths, Messages& messages,
                         PopupOpener& opener)
    : Popup(state, windows, desktop, lightingLayout, lightingIndex, opener),
      model(state),
      paths(paths),
      messages(messages) {}

void frmLighting::Form_Load() {
  usable = false;
  Popup::Form_Load();
  const auto report = [this](const Error&) { messages.show("Unable to load Light menu", toolbarTitle); };
  handleWith(report, [this] {
    connectEvents();
    for (int i = 0; i < lampBarCount; ++i) buildLampBar(i);
    buildCentreBar();
    buildSwitch();
    usable = true;
  });
}

void frmLighting::connectEvents() {
  for (int i = 0; i <= centreBar; ++i) {
    ButtonBar& bar = barLamp(i);
    bar.buttonPress = [this](const std::string& key) { barLamp_ButtonPress(key); };
    bar.buttonMouseMove = [this, i](const std::string& key) { barLamp_ButtonMouseMove(i, key); };
    bar.lostFocus = [this, i] { barLamp_LostFocus(i); };
    bar.arrowKey = [this](const std::string& key, Key arrow) { return lampOf(key) && moveFocus(*lampOf(key), arrow); };
  }
  // The keyboard comes to the centre for the lamp in front; the cube that was previewed there is none.
  barLamp(centreBar).gotFocus = [this] {
    if (lightIsOn) preview(*lampOf("M"));
  };
  barSwitch().buttonPress = [this](const std::string& key) { barSwitch_ButtonPress(key); };
  barSwitch().buttonMouseMove = [this](const std::string&) { Form_MouseMove(); };
  barSwitch().lostFocus = [this] { leave(); };
  PictureBox& pnlLight = loadedWindow().pictureBox("pnlLight");
  pnlLight.mouseMove = [this](Twips, Twips) { Form_MouseMove(); };
  pnlLight.lostFocus = [this] { leave(); };
  pnlLight.keyDown = [this](Key key) { return key != Key::choose && enterLamps(); };
  pnlLight.setTabStop(false);
  loadedWindow().mouseMoved = [this] { Form_MouseMove(); };
  loadedWindow().mouseLeft = [this] { Form_MouseMove(); };
  loadedWindow().closeRequested = [this] { handle(messages, [this] { HideSelf(); }); };
}

void frmLighting::makeSettings(ButtonBar& bar) {
  bar.setEnabled(true);
  bar.setResourceFolder(paths.SystemPath);
  bar.setShowsTooltips(true);
  bar.setResourceFile("Toolbar.res");
}

void frmLighting::buildLampBar(int index) {
  ButtonBar& bar = barLamp(index);
  makeSettings(bar);
  bar.openLayout("Enabled");
  addLamps(index, enabledLamps());
  bar.recomputeLayout();
  bar.openLayout("Disabled");
  addLamps(index, disabledLamps());
  bar.recomputeLayout();
}

// A greyed lamp has the key of its bright twin with a "D" behind it.
void frmLighting::addLamps(int index, std::span<const LampButton> buttons) {
  for (const LampButton& button : buttons) {
    if (button.bar != index) continue;
    barLamp(index).addButton(button.key, button.bitmapSpec);
    std::string lampKey = button.key;
    if (!lampOf(lampKey)) lampKey.pop_back();
    barLamp(index).setAccessibleName(lampOf(lampKey)->accessibleName);
  }
}

// Whatever cube it shows, pointing at it brings the light from the front, and that is what it is called.
void frmLighting::buildCentreBar() {
  ButtonBar& bar = barLamp(centreBar);
  makeSettings(bar);
  for (const Lamp& lamp : lamps) {
    bar.openLayout(lamp.centreLayout);
    bar.addButton(lamp.centreKey, lamp.centreBitmap);
    bar.setAccessibleName(lampOf("M")->accessibleName);
    bar.recomputeLayout();
  }
  bar.openLayout("Disabled");
  bar.addButton("LightNone", "4, lightCubeOff.bmp, 0,0");
  bar.setAccessibleName(lampOf("M")->accessibleName);
  bar.recomputeLayout();
}

void frmLighting::buildSwitch() {
  makeSettings(barSwitch());
  addSwitch("LightOn", "SwitchOff", "5, lampOn.bmp, 0,0", "Turn the light off");
  addSwitch("LightOff", "SwitchOn", "5, lampOff.bmp, 0,0", "Turn the light on");
  barSwitch().showLayout("LightOn");
}

void frmLighting::addSwitch(const char* layout, const char* key, const char* bitmapSpec, const char* tooltip) {
  ButtonBar& bar = barSwitch();
  bar.openLayout(layout);
  bar.addButton(key, bitmapSpec);
  bar.setTooltip(tooltip);
  bar.recomputeLayout();
}

void frmLighting::ShowSelf(std::int16_t x, std::int16_t y) {
  const FocusGuard staysOpen(*this);
  ignoringErrors([this] { load(); });
  if (!usable) return;
  Popup::ShowSelf(x, y);
  if (!isVisible()) return;
  ignoringErrors([this] { showModelsLight(); });
  // The popup closes when its panel loses the focus, so the panel must have it.
  if (!isVisible()) return;
  loadedWindow().pictureBox("pnlLight").setFocus();
  if (loadedWindow().showsFocus()) enterLamps();
}

void frmLighting::showModelsLight() {
  lightIsOn = model.LightIsOn();
  if (!lightIsOn) {
    TurnOffTheLights();
    return;
  }
  barLamp(current->bar).setState(current->key, buttonUp, true);
  if (const auto direction = model.GetLightDirection()) current = &lampToward(direction->x, direction->y);
  TurnOnTheLights();
}

void frmLighting::showLampBars(const char* layout) {
  for (int i = 0; i < lampBarCount; ++i) barLamp(i).showLayout(layout);
}

void frmLighting::TurnOffTheLights() {
  barSwitch().showLayout("LightOff");
  showLampBars("Disabled");
  barLamp(centreBar).showLayout("Disabled");
  lightIsOn = false;
  model.setLightIsOn(false);
}

void frmLighting::TurnOnTheLights() {
  barSwitch().showLayout("LightOn");
  showLampBars("Enabled");
  preview(*current);
  barLamp(current->bar).setState(current->key, buttonDown, true);
  lightIsOn = true;
  model.setLightIsOn(true);
}

void frmLighting::barLamp_ButtonPress(const std::string& key) {
  const Lamp* lamp = lampOf(key);
  if (lightIsOn && lamp) ignoringErrors([&] { choose(*lamp); });
}

void frmLighting::choose(const Lamp& lamp) {
  barLamp(current->bar).setState(current->key, buttonUp, true);
  model.SetLightDirection(lamp.direction);
  current = &lamp;
  if (lamp.bar == centreBar) preview(lamp);
  barLamp(lamp.bar).setState(lamp.key, buttonDown, true);
}

// Whatever cube is shown in the centre, the lamp there is the one in front; else it could never be pressed.
void frmLighting::barLamp_ButtonMouseMove(int index, const std::string& key) {
  const Lamp* lamp = lampOf(index == centreBar ? "M" : key);
  if (lightIsOn && lamp) ignoringErrors([&] { preview(*lamp); });
}

void frmLighting::Form_MouseMove() {
  if (lightIsOn) ignoringErrors([this] { preview(*current); });
}

void frmLighting::barSwitch_ButtonPress(const std::string& key) {
  ignoringErrors([&] { key == "SwitchOff" ? TurnOffTheLights() : TurnOnTheLights(); });
}

bool frmLighting::moveFocus(const Lamp& from, Key arrow) {
  const Lamp& to = neighbour(from, arrow);
  // Before, because the centre must show the lamp that is to have the focus; again after, because leaving the centre
  // brings the current direction back.
  preview(to);
  barLamp(to.bar).focusButton(to.key);
  preview(to);
  return true;
}

// The keyboard begins at the lamp of the current direction, or at the switch of a light that is off.
bool frmLighting::enterLamps() {
  if (lightIsOn) {
    preview(*current);
    barLamp(current->bar).focusButton(current->key);
  } else {
    barSwitch().focusButton("SwitchOn");
  }
  return true;
}

void frmLighting::barLamp_LostFocus(int index) {
  if (index == centreBar) Form_MouseMove();
  leave();
}

void frmLighting::leave() {
  handle(messages, [this] { closeIfFocusWentElsewhere(); });
}

void frmLighting::HideSelf() {
  if (closing) return;
  const FocusGuard onlyOnce(*this);
  hideWindow();
  opener.KillChild();
  opener.takeForeground();
  opener.releaseButton("Lighting");
  markShown(false);
  closing = true;
}

}  // namespace nerida

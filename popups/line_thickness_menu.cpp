#include "popups/line_thickness_menu.h"

#include <algorithm>
#include <array>

#include "popups/popup_layouts.h"

namespace nerida {
namespace {

struct Thickness {
  const char* key;
  const char* bitmapSpec;
  std::int32_t selection;
  std::int16_t scale;  // percent; also the thickest line for which the button is shown pressed
  const char* accessibleName;
};

constexpr std::array thicknesses{
    Thickness{"ExThin", "3, LineXS.bmp, 0,0", 50, 50, "Extra thin"},
    Thickness{"Thin", "3, LineS.bmp, 0,17", 75, 75, "Thin"},
    Thickness{"Medium", "3, LineM.bmp, 0,34", 100, 100, "Medium"},
    Thickness{"Thick", "3, LineL.bmp, 0,51", 200, 150, "Thick"},
    Thickness{"ExThick", "3, LineXL.bmp, 0,68", 300, 200, "Extra thick"},
};

const Thickness* thicknessOf(const std::string& key) {
  const auto found =
      std::find_if(thicknesses.begin(), thicknesses.end(), [&](const Thickness& t) { return key == t.key; });
  return found == thicknesses.end() ? nullptr : &*found;
}

// The thickest one takes all that is thicker than the others.
const Thickness& thicknessFor(std::int32_t scale) {
  return *std::find_if(thicknesses.begin(), thicknesses.end() - 1,
                       [&](const Thickness& t) { return scale <= t.scale; });
}

}  // namespace

frmLineThicknessMenu::frmLineThicknessMenu(State& state, WindowFactory& windows, Desktop& desktop, const Paths& paths,
                                           PopupOpener& opener)
    : Popup(state, windows, desktop, lineThicknessLayout, lineThicknessIndex, opener), model(state), paths(paths) {}

void frmLineThicknessMenu::Form_Load() {
  connectEvents();
  buildBar();
  Popup::Form_Load();
}

void frmLineThicknessMenu::connectEvents() {
  PictureBox& pnlThickness = loadedWindow().pictureBox("pnlThickness");
  const auto leave = [this] { ignoringErrors([this] { closeIfFocusWentElsewhere(); }); };
  barThick().buttonPress = [this](const std::string& key) { barThick_ButtonPress(key); };
  barThick().gotFocus = [this] { ignoringErrors([this] { return loadedWindow().showsFocus() && enterBar(); }); };
  barThick().lostFocus = leave;
  pnlThickness.lostFocus = leave;
  pnlThickness.keyDown = [this](Key key) { return key != Key::choose && enterBar(); };
  pnlThickness.setTabStop(false);
  loadedWindow().closeRequested = [this] { ignoringErrors([this] { HideSelf(); }); };
}

void frmLineThicknessMenu::buildBar() {
  ButtonBar& bar = barThick();
  bar.setEnabled(true);
  bar.setResourceFolder(paths.SystemPath);
  bar.setShowsTooltips(true);
  bar.setResourceFile("Toolbar.res");
  bar.openLayout("Default");
  for (const Thickness& thickness : thicknesses) {
    bar.addButton(thickness.key, thickness.bitmapSpec);
    bar.setAccessibleName(thickness.accessibleName);
  }
  bar.recomputeLayout("ExThin;Thin;Medium;Thick;ExThick");
  bar.showLayout("Default");
}

void frmLineThicknessMenu::ShowSelf(std::int16_t x, std::int16_t y) {
  const FocusGuard staysOpen(*this);
  Popup::ShowSelf(x, y);
  if (!isVisible()) return;
  ignoringErrors([this] { showCurrentThickness(); });
  // Also after a failure: the popup closes when its panel loses the focus, so the panel must have it.
  if (!isVisible()) return;
  loadedWindow().pictureBox("pnlThickness").setFocus();
  if (loadedWindow().showsFocus()) enterBar();
}

void frmLineThicknessMenu::showCurrentThickness() {
  selection = model.LineThicknessScale();
  for (const Thickness& thickness : thicknesses) barThick().setValue(thickness.key, 0);
  const Thickness& current = thicknessFor(selection);
  if (&current == &thicknesses.back()) selection = current.scale;
  barThick().setState(current.key, buttonDown, true);
  barThick().setValue(current.key, 1);
}

// The keyboard begins at the button of the current thickness.
bool frmLineThicknessMenu::enterBar() {
  barThick().focusButton(thicknessFor(selection).key);
  return true;
}

// A failing model or toolbar does not keep the popup open.
void frmLineThicknessMenu::barThick_ButtonPress(const std::string& key) {
  if (const Thickness* chosen = thicknessOf(key)) {
    selection = chosen->selection;
    ignoringErrors([&] { model.setLineThicknessScale(chosen->scale); });
  }
  opener.afterChoice(0);
  ignoringErrors([this] { HideSelf(); });
}

void frmLineThicknessMenu::HideSelf() {
  if (closing) return;
  const FocusGuard onlyOnce(*this);
  hideWindow();
  opener.KillChild();
  opener.takeForeground();
  opener.releaseButton("LineThickness");
  markShown(false);
  closing = true;
}

}  // namespace nerida

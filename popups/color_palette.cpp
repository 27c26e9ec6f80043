// What a palette shows, what a choice does, and how it closes.
#include "popups/color_palette.h"

namespace nerida {

ColorPalette::ColorPalette(State& state, WindowFactory& windows, Desktop& desktop, Messages& messages,
                           PopupOpener& opener, RecentColors& recent, const PaletteRole& role)
    : Popup(state, windows, desktop, role.layout, role.index, opener),
      role(role),
      recent(recent),
      messages(messages),
      model(state) {}

void ColorPalette::Form_Load() {
  ignoringErrors([this] {
    hovered = previouslyHovered = {};
    selected = -1;
    frame = {};
    styleColorShown = moreColorsPressed = keysInUse = false;
    focus = Focus::none;
    connectEvents();
    recentSwatches = recent.PrevColor;  // the first paint shows them
    Popup::Form_Load();
  });
}

// The selected index stays that of the last choice: it is handed to the toolbar again when nothing is chosen, and a
// named colour among it keeps the recent ones from being searched.
void ColorPalette::ShowSelf(std::int16_t x, std::int16_t y) {
  ignoringErrors([&] {
    const FocusGuard staysOpen(*this);
    load();
    hovered = previouslyHovered = {};
    keysInUse = moreColorsPressed = false;
    hideFrame();  // that of an opening which the model cut short
    paintRecentSwatches();
    const OpenerWatch toolbar(state);
    preselect();
    if (!toolbar.stillThere()) return;
    loadedWindow().showTopmostAt({x, y});
    keysInUse = loadedWindow().showsFocus();
    closing = false;
    markShown(true);
  });
}

void ColorPalette::preselect() {
  styleColorShown = (model.*role.isDefault)();
  repaintEntry(styleRow);
  if (styleColorShown) return;
  const Rgb color = (model.*role.color)();
  loadedWindow();
  // Black is never looked for among the named colours: models report it where they have no colour.
  for (std::int16_t i = 1; i < namedColorCount; ++i) {
    if (namedColors[static_cast<std::size_t>(i)].color != color) continue;
    selected = i;
    moveFrame(i);
  }
  if (selected >= 0) return;
  for (std::int16_t slot = 0; slot < recentColorCount; ++slot) {
    if (recent.PrevColor[static_cast<std::size_t>(slot)] != color) continue;
    selected = static_cast<std::int16_t>(namedColorCount + slot);
    moveFrame(selected);
  }
}

// A hovered cell keeps the frame, whatever the index says.
void ColorPalette::moveFrame(std::int16_t index) {
  if (hovered.column < 0) hovered = cellOfIndex(index);
  setFrame(hovered);
}

void ColorPalette::setFrame(Cell cell) {
  frame = {true, frameAround(cell, pixel())};
  picture("pnlColor").repaint();
}

void ColorPalette::hideFrame() {
  if (!frame.visible) return;
  frame.visible = false;
  if (isLoaded()) picture("pnlColor").repaint();
}

void ColorPalette::paintRecentSwatches() {
  recentSwatches = recent.PrevColor;
  picture("pnlColor").repaint();
}

Rgb ColorPalette::colorOf(std::int16_t index) const {
  const auto place = static_cast<std::size_t>(index);
  return index < namedColorCount ? namedColors[place].color : recentSwatches[place - namedColorCount];
}

void ColorPalette::chooseHovered() {
  if (hovered.column < 0 || hovered.row >= moreColorsRow) return;
  selected = indexOfCell(hovered);
  moveFrame(selected);
  repaintEntry(styleRow);
  (model.*role.setColor)(colorOf(selected));
  loadedWindow();
  opener.afterChoice(0);
  HideSelf();
}

void ColorPalette::chooseCell(Cell cell) {
  hovered = cell;
  chooseHovered();
}

void ColorPalette::SetStyleDefault() {
  selected = -1;
  hideFrame();
  repaintEntry(styleRow);
  (model.*role.restore)();
  styleColorShown = true;
}

void ColorPalette::chooseStyleDefault() {
  SetStyleDefault();
  loadedWindow();
  HideSelf();
}

// The toolbar sets the model's colour; the palette only remembers it.
void ColorPalette::MoreColors() {
  ignoringErrors([this] {
    const bool chosen = [this] {
      const FocusGuard staysOpen(*this);
      return opener.chooseCustomColor(role.role, hWnd());
    }();
    loadedWindow();
    if (!chosen) {
      HideSelf();
      return;
    }
    recent.LastColor = static_cast<std::int16_t>(recent.LastColor == recentColorCount - 1 ? 0 : recent.LastColor + 1);
    const auto slot = static_cast<std::size_t>(recent.LastColor);
    recentSwatches[slot] = recent.PrevColor[slot] = opener.customColor(role.role);
    selected = static_cast<std::int16_t>(namedColorCount + recent.LastColor);
    moveFrame(selected);
    opener.afterChoice(0);
    HideSelf();
  });
}

void ColorPalette::HideSelf() {
  if (closing) return;
  closing = true;
  const FocusGuard alreadyClosing(*this);
  hideWindow();
  markShown(false);
  opener.KillChild();
  if (selected >= 0) opener.setShownColor(role.role, colorOf(selected));
  hideFrame();
  opener.takeForeground();
  opener.releaseButton(role.buttonKey);
}

}  // namespace nerida

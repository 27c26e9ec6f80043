// What the mouse and the keyboard do to a palette, and how it is drawn.
#include <algorithm>

#include "popups/color_palette.h"

namespace nerida {

void ColorPalette::connectEvents() {
  Window& form = loadedWindow();
  form.activated = [this] { ignoringErrors([this] { picture("pnlColor").setFocus(); }); };
  form.closeRequested = [this] { handle(messages, [this] { HideSelf(); }); };
  connectGrid();
  connectMoreColors();
  connectStyleDefault();
}

void ColorPalette::connectGrid() {
  PictureBox& panel = picture("pnlColor");
  panel.paint = [this](Canvas& canvas) { paintPanel(canvas); };
  panel.mouseMove = [this](Twips x, Twips y) { handle(messages, [&] { pnlColor_MouseMove(x, y); }); };
  panel.mouseDown = [this](Twips, Twips) { handle(messages, [this] { chooseHovered(); }); };
  panel.keyDown = [this](Key key) { return pnlColor_KeyDown(key); };
  panel.parts = [this] { return cells(); };
  panel.pressPart = [this](std::size_t part) {
    handle(messages, [&] { chooseCell(cellOfIndex(static_cast<int>(part))); });
  };
  connectFocus(panel, Focus::grid);
}

void ColorPalette::connectMoreColors() {
  PictureBox& box = picture("picMoreColors");
  Label& label = loadedWindow().label("lblMoreColors");
  label.mouseMove = [this] { enterEntry(moreColorsRow); };
  label.mouseDown = [this] { pressMoreColors(true); };
  label.mouseUp = [this] { releaseMoreColors(); };
  box.paint = [this](Canvas& canvas) { paintMoreColorsEntry(canvas, lookOf(moreColorsRow)); };
  box.mouseMove = [this](Twips, Twips) { enterEntry(moreColorsRow); };
  box.mouseDown = [this](Twips, Twips) { pressMoreColors(true); };
  box.mouseUp = [this](Twips, Twips) { releaseMoreColors(); };
  box.keyDown = [this](Key key) {
    if (key == Key::choose) MoreColors();
    return key == Key::choose;
  };
  box.parts = [this] { return entryPart("More Colors", Focus::moreColors, moreColorsPressed); };
  box.pressPart = [this](std::size_t) { MoreColors(); };
  connectFocus(box, Focus::moreColors);
}

void ColorPalette::connectStyleDefault() {
  PictureBox& box = picture("picLSSwatch");
  Label& label = loadedWindow().label("lblLSColor");
  const auto choose = [this] { handle(messages, [this] { chooseStyleDefault(); }); };
  label.mouseMove = [this] { enterEntry(styleRow); };
  label.mouseUp = choose;
  box.paint = [this](Canvas& canvas) { paintStyleEntry(canvas, lookOf(styleRow), styleColorShown); };
  box.mouseMove = [this](Twips, Twips) { enterEntry(styleRow); };
  box.mouseDown = [choose](Twips, Twips) { choose(); };
  box.keyDown = [choose](Key key) {
    if (key == Key::choose) choose();
    return key == Key::choose;
  };
  box.parts = [this] { return entryPart("LookStyle Default", Focus::styleDefault, styleColorShown); };
  box.pressPart = [choose](std::size_t) { choose(); };
  connectFocus(box, Focus::styleDefault);
}

void ColorPalette::pnlColor_MouseMove(Twips x, Twips y) {
  keysInUse = false;
  repaintEntry(previouslyHovered.row);
  const std::optional<Cell> under = cellAt(x, y);
  if (!under) {
    hovered = previouslyHovered = {};
    hideFrame();
    return;
  }
  if (*under == previouslyHovered) return;
  hovered = {under->column, std::min(under->row, recentRow)};
  setFrame(hovered);
  previouslyHovered = hovered;
}

// The row alone tells that an entry is hovered, so no cell counts as the one under the pointer.
void ColorPalette::enterEntry(std::int16_t row) {
  if (hovered.row == row) return;
  ignoringErrors([&] {
    repaintEntry(hovered.row);
    hovered = previouslyHovered = {-1, row};
    repaintEntry(row);
  });
}

void ColorPalette::pressMoreColors(bool pressed) {
  ignoringErrors([&] {
    moreColorsPressed = pressed;
    repaintEntry(moreColorsRow);
  });
}

void ColorPalette::releaseMoreColors() {
  pressMoreColors(false);
  MoreColors();
}

void ColorPalette::repaintEntry(std::int16_t row) {
  if (row == moreColorsRow) picture("picMoreColors").repaint();
  if (row == styleRow) picture("picLSSwatch").repaint();
}

// The first arrow key shows where the keyboard is, the next ones move. The place of the pointer is forgotten: the mouse
// takes over again as soon as it moves.
bool ColorPalette::pnlColor_KeyDown(Key key) {
  handle(messages, [&] {
    keysInUse = true;
    if (key == Key::choose) {
      chooseHovered();
      return;
    }
    Cell cell = keyboardCell();
    if (hovered == cell) {
      const auto step = [](bool less, bool more) { return (more ? 1 : 0) - (less ? 1 : 0); };
      const int column = cell.column + step(key == Key::left, key == Key::right);
      const int row = cell.row + step(key == Key::up, key == Key::down);
      cell = {static_cast<std::int16_t>(std::clamp(column, 0, gridColumns - 1)),
              static_cast<std::int16_t>(std::clamp(row, 0, int{recentRow}))};
    }
    repaintEntry(previouslyHovered.row);
    hovered = cell;
    previouslyHovered = {};
    setFrame(cell);
  });
  return true;
}

Cell ColorPalette::keyboardCell() const {
  if (hovered.column >= 0) return hovered;
  return selected >= 0 ? cellOfIndex(selected) : Cell{0, 0};
}

void ColorPalette::connectFocus(PictureBox& box, Focus place) {
  box.gotFocus = [this, place] { focusCame(place); };
  box.lostFocus = [this] { focusLeft(); };
}

// Only the keyboard brings the focus to an entry.
void ColorPalette::focusCame(Focus place) {
  focus = place;
  if (place != Focus::grid) keysInUse = true;
  ignoringErrors([this] {
    for (const char* name : {"pnlColor", "picMoreColors", "picLSSwatch"}) picture(name).repaint();
  });
}

void ColorPalette::focusLeft() {
  focus = Focus::none;
  handle(messages, [this] { closeIfFocusWentElsewhere(); });
}

std::vector<DrawnPart> ColorPalette::cells() const {
  std::vector<DrawnPart> parts;
  for (int i = 0; i < cellCount; ++i) {
    const Cell cell = cellOfIndex(i);
    const bool isRecent = i >= namedColorCount;
    const bool hasFocus = focus == Focus::grid && cell == keyboardCell();
    parts.push_back({isRecent ? "Recent color " + std::to_string(i - namedColorCount + 1)
                              : namedColors[static_cast<std::size_t>(i)].name,
                     placeOfCell(cell), !styleColorShown && i == selected, hasFocus});
  }
  return parts;
}

std::vector<DrawnPart> ColorPalette::entryPart(const char* name, Focus place, bool pressed) const {
  return {{name, {{0}, {0}, {paletteEntryWidth}, {paletteEntryHeight}}, pressed, focus == place}};
}

EntryLook ColorPalette::lookOf(std::int16_t row) const {
  const bool isMoreColors = row == moreColorsRow;
  return {hovered.row == row, isMoreColors && moreColorsPressed,
          focus == (isMoreColors ? Focus::moreColors : Focus::styleDefault)};
}

void ColorPalette::paintPanel(Canvas& canvas) const {
  for (std::int16_t i = 0; i < cellCount; ++i) paintCell(canvas, cellOfIndex(i), colorOf(i));
  if (frame.visible) paintFrame(canvas, frame.place);
  if (focus != Focus::grid || !keysInUse) return;
  const Bounds place = placeOfCell(keyboardCell());
  const Twips inset{30};
  canvas.focusBox(place.left + inset, place.top + inset, place.left + place.width - inset,
                  place.top + place.height - inset);
}

}  // namespace nerida

// What the mouse and the keyboard do to a palette, and how it is drawn.
#include <algorithm>
#include <utility>

#include "popups/color_palette.h"

namespace nerida {

void ColorPalette::connectEvents() {
  Window& form = loadedWindow();
  form.activated = [this] { ignoringErrors([this] { picture("pnlColor").setFocus(); }); };
  form.mouseLeft = [this] { handle(messages, [this] { forgetPointer(); }); };
  form.closeRequested = [this] { handle(messages, [this] { HideSelf(); }); };
  connectGrid();
  connectMoreColors();
  connectStyleDefault();
}

// A choice that the model refuses is reported, and the message must not close the palette: it stays for another one.
void ColorPalette::connectGrid() {
  PictureBox& panel = picture("pnlColor");
  panel.paint = [this](Canvas& canvas) { paintPanel(canvas); };
  panel.mouseMove = [this](Twips x, Twips y) { handle(messages, [&] { pnlColor_MouseMove(x, y); }); };
  panel.mouseDown = [this](Twips x, Twips y) {
    const FocusGuard staysOpen(*this);
    handle(messages, [&] { pnlColor_MouseDown(x, y); });
  };
  panel.keyDown = [this](Key key) { return pnlColor_KeyDown(key); };
  panel.parts = [this] { return cells(); };
  panel.pressPart = [this](std::size_t part) {
    const FocusGuard staysOpen(*this);
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
  box.paint = [this](Canvas& canvas) { paintMoreColorsEntry(canvas, lookOf(moreColorsRow), pixel()); };
  box.mouseMove = [this](Twips, Twips) { enterEntry(moreColorsRow); };
  box.mouseDown = [this](Twips, Twips) { pressMoreColors(true); };
  box.mouseUp = [this](Twips, Twips) { releaseMoreColors(); };
  box.keyDown = [this](Key key) {
    if (key == Key::choose) MoreColors();
    return key == Key::choose;
  };
  box.parts = [this] { return entryPart("More Colors", moreColorsRow, moreColorsPressed); };
  box.pressPart = [this](std::size_t) { MoreColors(); };
  connectFocus(box, Focus::moreColors);
}

void ColorPalette::connectStyleDefault() {
  PictureBox& box = picture("picLSSwatch");
  Label& label = loadedWindow().label("lblLSColor");
  const auto choose = [this] {
    const FocusGuard staysOpen(*this);
    handle(messages, [this] { chooseStyleDefault(); });
  };
  label.mouseMove = [this] { enterEntry(styleRow); };
  label.click = choose;
  box.paint = [this](Canvas& canvas) { paintStyleEntry(canvas, lookOf(styleRow), styleColorShown, pixel()); };
  box.mouseMove = [this](Twips, Twips) { enterEntry(styleRow); };
  box.mouseDown = [choose](Twips, Twips) { choose(); };
  box.keyDown = [choose](Key key) {
    if (key == Key::choose) choose();
    return key == Key::choose;
  };
  box.parts = [this] { return entryPart("LookStyle Default", styleRow, styleColorShown); };
  box.pressPart = [choose](std::size_t) { choose(); };
  connectFocus(box, Focus::styleDefault);
}

void ColorPalette::pnlColor_MouseMove(Twips x, Twips y) {
  if (std::exchange(keysInUse, false)) picture("pnlColor").repaint();
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

// The mouse is used where the keyboard was: what counts then is where the pointer is.
void ColorPalette::pnlColor_MouseDown(Twips x, Twips y) {
  if (keysInUse) pnlColor_MouseMove(x, y);
  chooseHovered();
}

// What shows the model's colour stays; only what the pointer marked goes with it.
void ColorPalette::forgetPointer() {
  if (previouslyHovered.row < 0) return;
  repaintEntry(previouslyHovered.row);
  if (previouslyHovered.column >= 0) hideFrame();
  hovered = previouslyHovered = {};
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

// Where nothing showed yet where the keyboard is, the first key shows it. The place of the pointer is forgotten: the
// mouse takes over again as soon as it moves.
bool ColorPalette::pnlColor_KeyDown(Key key) {
  const FocusGuard staysOpen(*this);
  handle(messages, [&] {
    const bool wasVisible = std::exchange(keysInUse, true) || hovered.column >= 0;
    const Cell cell = wasVisible ? cellBeside(keyboardCell(), key) : keyboardCell();
    repaintEntry(previouslyHovered.row);
    hovered = cell;
    previouslyHovered = {};
    setFrame(cell);
    if (wasVisible && key == Key::choose) chooseHovered();
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

// Only the keyboard brings the focus to an entry, where no cell is its place.
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
    parts.push_back({.name = isRecent ? "Recent color " + std::to_string(i - namedColorCount + 1)
                                      : namedColors[static_cast<std::size_t>(i)].name,
                     .place = placeOfCell(cell),
                     .pressed = !styleColorShown && i == selected,
                     .focused = hasFocus,
                     .hot = cell == previouslyHovered});
  }
  return parts;
}

std::vector<DrawnPart> ColorPalette::entryPart(const char* name, std::int16_t row, bool pressed) const {
  const EntryLook look = lookOf(row);
  return {{.name = name,
           .place = {{0}, {0}, {paletteEntryWidth}, {paletteEntryHeight}},
           .pressed = pressed,
           .focused = look.focused,
           .hot = look.hovered,
           .captioned = true}};
}

EntryLook ColorPalette::lookOf(std::int16_t row) const {
  const bool isMoreColors = row == moreColorsRow;
  return {hovered.row == row, isMoreColors && moreColorsPressed,
          focus == (isMoreColors ? Focus::moreColors : Focus::styleDefault)};
}

void ColorPalette::paintPanel(Canvas& canvas) const {
  for (std::int16_t i = 0; i < cellCount; ++i) {
    paintSwatch(canvas, swatchIn(frameAround(cellOfIndex(i), pixel()), pixel()), colorOf(i));
  }
  if (frame.visible) paintFrame(canvas, frame.place);
  if (focus != Focus::grid || !keysInUse) return;
  const Corners inside = shrunk(frameAround(keyboardCell(), pixel()), 1, pixel());
  canvas.focusBox(inside.left, inside.top, inside.right, inside.bottom);
}

}  // namespace nerida

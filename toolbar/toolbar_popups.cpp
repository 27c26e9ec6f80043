// The popups that hang below the toolbar's buttons: opening, placing and closing them, which of them are up, and the
// custom colours that the palettes ask for.
#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

#include "toolbar/frm_toolbar.h"

namespace nerida {
namespace {

// Screen pixels.
constexpr std::int32_t gapBelowButton = 25;
constexpr std::int32_t animationDrop = 40;
constexpr std::int32_t lightingWidth = 345;
constexpr std::int32_t lightingOffset = 23;

}  // namespace

const std::array<frmToolbar::PopupButton, 5> frmToolbar::popupButtons{{
    {"LineThickness", "barLS", 0, &OpenMarks::lineThickness, &Neighbours::lineThickness},
    {"LineColorFill", "barLS", 1, &OpenMarks::lineColor, &Neighbours::lineColors},
    {"SurfaceColorFill", "barLS", 2, &OpenMarks::fillColor, &Neighbours::surfaceColors},
    {"Background", "barLS", 3, &OpenMarks::background, &Neighbours::backgroundColors},
    {"Lighting", "barWorld", 0, &OpenMarks::lighting, &Neighbours::lighting},
}};

const frmToolbar::PopupButton* frmToolbar::popupButton(std::string_view bar, const std::string& key) {
  const auto found = std::ranges::find_if(
      popupButtons, [&](const PopupButton& button) { return bar == button.bar && key == button.key; });
  return found == popupButtons.end() ? nullptr : &*found;
}

void frmToolbar::barLS_ButtonPress(const std::string& key) {
  handle(messages, [&] {
    const PopupButton* button = popupButton("barLS", key);
    settleClosing(button);
    if (!button) return;
    if (openMarks.*button->mark) {
      closePopup(*button);
      return;
    }
    const Point place = placeOfStylePopup(*button);
    openMarks = {};
    openPopup(*button, place);
  });
}

void frmToolbar::barWorld_ButtonPress(const std::string& key) {
  handle(messages, [&] {
    settleClosing(popupButton("barWorld", key));
    openMarks.lineThickness = openMarks.lineColor = openMarks.fillColor = openMarks.background = false;
    if (key == "Move") {
      NudgeToggle(!NudgeOn);
    } else if (key == "Lighting") {
      toggleLighting();
    } else if (key == "Animation") {
      const Point anchor = anchorBelow("barWorld", 0);
      neighbours.animation->ShowSelf(roundToInt16(anchor.x), roundToInt16(anchor.y + animationDrop));
    } else if (key == "Help") {
      neighbours.catalog->ShowHelpFile();
    }
  });
}

void frmToolbar::toggleLighting() {
  const PopupButton& button = *popupButton("barWorld", "Lighting");
  if (openMarks.lighting) {
    closePopup(button);
    return;
  }
  if (OpenChild == std::numeric_limits<std::int16_t>::max()) throw Error(error::overflow);
  ++OpenChild;
  openPopup(button, placeOfLighting());
}

// A popup that gave up before it showed, because the model failed it, leaves no latched button behind.
void frmToolbar::openPopup(const PopupButton& button, Point place) {
  const std::int16_t x = roundToInt16(place.x);
  const std::int16_t y = roundToInt16(place.y);
  openMarks.*button.mark = true;
  bar(button.bar, button.index).setState(button.key, buttonDown, true);
  Popup& popup = *(neighbours.*button.popup);
  popup.ShowSelf(x, y);
  openMarks.*button.mark = popup.isMarkedShown();
  if (!popup.isMarkedShown()) bar(button.bar, button.index).setState(button.key, buttonUp, true);
}

// Mostly the popup is gone by now: it lost the focus when the button was pressed.
void frmToolbar::closePopup(const PopupButton& button) {
  openMarks.*button.mark = false;
  bar(button.bar, button.index).setState(button.key, buttonUp, true);
  Popup& popup = *(neighbours.*button.popup);
  if (popup.isMarkedShown()) popup.HideSelf();
}

// In screen pixels, with the gap below the button's upper edge.
Point frmToolbar::anchorBelow(const char* barName, int index) {
  const Bounds place = bar(barName, index).bounds();
  const Point origin = loadedWindow().clientOrigin();
  const double twipsX = state.gTwipsPerPixelX;
  const double twipsY = state.gTwipsPerPixelY;
  return {roundToInt32(place.left.value / twipsX + origin.x),
          roundToInt32(place.top.value / twipsY + origin.y + gapBelowButton)};
}

// Above the button when there is no room for it below.
std::int32_t frmToolbar::topWithin(const Size& screen, std::int32_t top, const Size& popup) {
  return top + popup.height > screen.height ? top - (popup.height + gapBelowButton) : top;
}

Point frmToolbar::placeOfStylePopup(const PopupButton& button) {
  const Point anchor = anchorBelow(button.bar, button.index);
  const Size popup = (neighbours.*button.popup)->sizeInPixels();
  const Size screen = desktop.screenSize();
  const std::int32_t overflow = anchor.x + popup.width - screen.width;
  return {anchor.x - std::max(overflow, 0), topWithin(screen, anchor.y, popup)};
}

Point frmToolbar::placeOfLighting() {
  const Point anchor = anchorBelow("barWorld", 0);
  const Size screen = desktop.screenSize();
  const std::int32_t room = screen.width - anchor.x;
  const std::int32_t shift = room < lightingWidth ? lightingWidth - room : lightingOffset;
  return {anchor.x - shift, topWithin(screen, anchor.y, neighbours.lighting->sizeInPixels())};
}

// A click on the popup's own button takes the focus from the popup, which closes it, before it presses the button. That
// press must not open the popup again: until it comes, the mark stays.
void frmToolbar::KillChild() {
  for (const PopupButton& button : popupButtons) {
    const Popup& popup = *(neighbours.*button.popup);
    if (!(openMarks.*button.mark) || popup.isVisible()) continue;
    openMarks.*button.mark = popup.isLosingFocus();
    if (!popup.isLosingFocus()) continue;
    closedByClick = &button;
    closedAt = desktop.clock();
  }
  if (OpenChild == std::numeric_limits<std::int16_t>::min()) throw Error(error::overflow);
  --OpenChild;
}

// At a press: a mark that has waited for another one is forgotten.
void frmToolbar::settleClosing(const PopupButton* pressed) {
  const PopupButton* closed = std::exchange(closedByClick, nullptr);
  if (!closed) return;
  const bool isItsPress = closed == pressed && hasClosedPopup(bar(closed->bar, closed->index));
  if (!isItsPress) openMarks.*closed->mark = (neighbours.*closed->popup)->isMarkedShown();
}

// The click that closed it began before; but the system's clocks agree only roughly.
bool frmToolbar::hasClosedPopup(const ButtonBar& pressed) const {
  constexpr std::int32_t tolerance = 100;  // milliseconds; no hand clicks twice as fast
  const std::optional<std::uint32_t> began = pressed.pressBegan();
  return began && static_cast<std::int32_t>(*began - closedAt) <= tolerance;
}

void frmToolbar::releaseButton(const std::string& key) {
  for (const PopupButton& button : popupButtons) {
    if (key == button.key && isLoaded()) bar(button.bar, button.index).setState(key, buttonUp, true);
  }
}

void frmToolbar::takeForeground() {
  if (isLoaded()) desktop.setForegroundWindow(hWnd());
}

void frmToolbar::afterChoice(std::int16_t open) {
  const bool up = open != 0;
  openMarks = {up, up, up, up, up};
}

bool frmToolbar::chooseCustomColor(ColorRole role, WindowHandle owner) {
  switch (role) {
    case ColorRole::background:
      return GetCustomBackColor(owner);
    case ColorRole::line:
      return GetCustomLineColor(owner);
    default:
      return GetCustomSurfaceColor(owner);
  }
}

bool frmToolbar::GetCustomSurfaceColor(WindowHandle owner) {
  return chooseColor(owner, CustomSurfaceColor, shownColor(ColorRole::surface), &ModelObject::setSurfaceColor);
}

bool frmToolbar::GetCustomLineColor(WindowHandle owner) {
  return chooseColor(owner, CustomLineColor, shownColor(ColorRole::line), &ModelObject::setLineColor);
}

bool frmToolbar::GetCustomBackColor(WindowHandle owner) {
  return chooseColor(owner, CustomBackColor, shownColor(ColorRole::background), &ModelObject::setBackgroundColor);
}

// A dialog that outlives the model it was opened for changes nothing.
bool frmToolbar::chooseColor(WindowHandle owner, Rgb& custom, Rgb start, void (ModelObject::*setColor)(std::int32_t)) {
  bool done = false;
  ignoringErrors([&] {
    const int bindings = state.bindings;
    const std::optional<Rgb> chosen = prompts.chooseColor(owner, start);
    if (!chosen || bindings != state.bindings) return;
    const Rgb before = std::exchange(custom, *chosen);
    trap(
        [&] {
          (model.*setColor)(*chosen);
          done = true;
        },
        [&](const Error&) { custom = before; });
  });
  return done;
}

Rgb frmToolbar::customColor(ColorRole role) const {
  switch (role) {
    case ColorRole::background:
      return CustomBackColor;
    case ColorRole::line:
      return CustomLineColor;
    default:
      return CustomSurfaceColor;
  }
}

}  // namespace nerida

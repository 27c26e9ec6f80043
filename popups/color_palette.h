#pragma once

#include <array>
#include <optional>

#include "core/messages.h"
#include "core/model_object.h"
#include "popups/color_table.h"
#include "popups/palette_entries.h"
#include "popups/palette_grid.h"
#include "popups/popup.h"
#include "popups/popup_layouts.h"

namespace nerida {

// In what the three palettes differ.
struct PaletteRole {
  const FormLayout& layout;
  int index;
  ColorRole role;
  const char* buttonKey;  // of the toolbar button that opens the palette
  bool (ModelObject::*isDefault)();
  std::int32_t (ModelObject::*color)();
  void (ModelObject::*setColor)(std::int32_t color);
  void (ModelObject::*restore)();
};

inline constexpr PaletteRole backgroundRole{backgroundColorsLayout,
                                            backgroundColorsIndex,
                                            ColorRole::background,
                                            "Background",
                                            &ModelObject::IsBackgroundDefault,
                                            &ModelObject::BackgroundColor,
                                            &ModelObject::setBackgroundColor,
                                            &ModelObject::RestoreDefaultBackgroundColor};
inline constexpr PaletteRole lineRole{lineColorsLayout,
                                      lineColorsIndex,
                                      ColorRole::line,
                                      "LineColorFill",
                                      &ModelObject::IsLineColorDefault,
                                      &ModelObject::LineColor,
                                      &ModelObject::setLineColor,
                                      &ModelObject::RestoreDefaultLineColor};
inline constexpr PaletteRole surfaceRole{surfaceColorsLayout,
                                         surfaceColorsIndex,
                                         ColorRole::surface,
                                         "SurfaceColorFill",
                                         &ModelObject::IsSurfaceColorDefault,
                                         &ModelObject::SurfaceColor,
                                         &ModelObject::setSurfaceColor,
                                         &ModelObject::RestoreDefaultSurfaceColor};

// The colour palette: frmBackgroundColors, frmLineColors and frmSurfaceColors are its three instances. Its program
// lies in two rooms: color_palette (showing, choosing, closing) and palette_input (mouse, keyboard, drawing).
class ColorPalette : public Popup {
 public:
  ColorPalette(State& state, WindowFactory& windows, Desktop& desktop, Messages& messages, PopupOpener& opener,
               RecentColors& recent, const PaletteRole& role);

  void ShowSelf(std::int16_t x, std::int16_t y) override;
  void HideSelf() override;
  // Gives the colour back to the model's style. Raises the model's errors.
  void SetStyleDefault();

 protected:
  void Form_Load() override;

 private:
  enum class Focus { none, grid, moreColors, styleDefault };

  // What the row of a hovered cell says when the pointer is over an entry instead.
  static constexpr std::int16_t moreColorsRow = 6;
  static constexpr std::int16_t styleRow = 7;

  Pixel pixel() const { return {{state.gTwipsPerPixelX}, {state.gTwipsPerPixelY}}; }
  PictureBox& picture(const char* name) { return loadedWindow().pictureBox(name); }

  void preselect();
  void moveFrame(std::int16_t index);
  void setFrame(Cell cell);
  void hideFrame();
  void paintRecentSwatches();
  Rgb colorOf(std::int16_t index) const;
  void chooseHovered();
  void chooseCell(Cell cell);
  void chooseStyleDefault();
  void MoreColors();

  void connectEvents();
  void connectGrid();
  void connectMoreColors();
  void connectStyleDefault();
  void pnlColor_MouseMove(Twips x, Twips y);
  void pnlColor_MouseDown(Twips x, Twips y);
  bool pnlColor_KeyDown(Key key);
  void enterEntry(std::int16_t row);
  void forgetPointer();
  void pressMoreColors(bool pressed);
  void releaseMoreColors();
  void connectFocus(PictureBox& box, Focus place);
  void focusCame(Focus place);
  void focusLeft();
  void repaintEntry(std::int16_t row);
  Cell keyboardCell() const;
  std::vector<DrawnPart> cells() const;
  std::vector<DrawnPart> entryPart(const char* name, std::int16_t row, bool pressed) const;
  void paintPanel(Canvas& canvas) const;
  EntryLook lookOf(std::int16_t row) const;

  // The rectangle of the selection frame's four lines.
  struct Frame {
    bool visible = false;
    Corners place{};
  };

  const PaletteRole& role;
  RecentColors& recent;
  Messages& messages;
  ModelObject model;

  std::array<Rgb, recentColorCount> recentSwatches{};  // their fill colours
  Cell hovered;
  Cell previouslyHovered;
  std::int16_t selected = -1;  // 0 to 39 a named colour, 40 to 47 a recent one
  Frame frame;
  bool styleColorShown = false;
  bool moreColorsPressed = false;
  Focus focus = Focus::none;
  bool keysInUse = false;  // the place of the keyboard is drawn
};

}  // namespace nerida

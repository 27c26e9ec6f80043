#pragma once

#include "popups/popup.h"
#include "popups/popup_layouts.h"

namespace nerida {

// In what the three palettes differ.
struct PaletteRole {
  const FormLayout& layout;
  int index;
  const char* buttonKey;  // of the toolbar button that opens the palette
};

inline constexpr PaletteRole backgroundRole{backgroundColorsLayout, backgroundColorsIndex, "Background"};
inline constexpr PaletteRole lineRole{lineColorsLayout, lineColorsIndex, "LineColorFill"};
inline constexpr PaletteRole surfaceRole{surfaceColorsLayout, surfaceColorsIndex, "SurfaceColorFill"};

// The colour palette: frmBackgroundColors, frmLineColors and frmSurfaceColors are its three instances.
class ColorPalette : public Popup {
 public:
  ColorPalette(State& state, WindowFactory& windows, Desktop& desktop, PopupOpener& opener, const PaletteRole& role);

  void HideSelf() override;

 private:
  const PaletteRole& role;
};

}  // namespace nerida

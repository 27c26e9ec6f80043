#pragma once

#include "catalog/frm_browser.h"
#include "control/frm_about.h"
#include "core/messages.h"
#include "core/paths.h"
#include "core/state.h"
#include "platform/platform.h"
#include "popups/animation.h"
#include "popups/color_palette.h"
#include "popups/color_table.h"
#include "popups/lighting.h"
#include "popups/line_thickness_menu.h"
#include "toolbar/frm_toolbar.h"

namespace nerida {

// The library put together: its state, its paths and colours, and the single instance of every form, over one
// platform side. One per process (every test makes its own); it outlives every control.
struct Library {
  explicit Library(const Platform& platform);

  // Modal. Quiet about failures.
  void showAboutBox();

  Desktop& desktop;
  Registry& registry;
  Settings& settings;
  State state;
  Paths paths;
  RecentColors recentColors;
  Messages messages;

  frmToolbar toolbar;
  frmLineThicknessMenu lineThicknessMenu;
  ColorPalette lineColors;
  ColorPalette surfaceColors;
  ColorPalette backgroundColors;
  frmAnimation animation;
  frmLighting lighting;
  frmBrowser browser;
  frmAbout about;
};

}  // namespace nerida

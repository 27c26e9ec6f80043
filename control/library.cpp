#include "control/library.h"

#include "control/toolbar_window_proc.h"

namespace nerida {

Library::Library(const Platform& platform)
    : desktop(platform.desktop),
      registry(platform.registry),
      settings(platform.settings),
      messages(platform.prompts),
      toolbar(state, platform.windows, desktop, platform.prompts, paths, messages),
      lineThicknessMenu(state, platform.windows, desktop, paths, toolbar),
      lineColors(state, platform.windows, desktop, messages, toolbar, recentColors, lineRole),
      surfaceColors(state, platform.windows, desktop, messages, toolbar, recentColors, surfaceRole),
      backgroundColors(state, platform.windows, desktop, messages, toolbar, recentColors, backgroundRole),
      animation(state, platform.windows, desktop, paths, messages, toolbar),
      lighting(state, platform.windows, desktop, paths, messages, toolbar),
      browser(state, platform.windows, paths, messages,
              {desktop, platform.prompts, settings, platform.shell, platform.files, platform.searchComponents}),
      about(state, platform.windows, platform.files, paths) {
  toolbar.connect({.lineThickness = &lineThicknessMenu,
                   .lineColors = &lineColors,
                   .surfaceColors = &surfaceColors,
                   .backgroundColors = &backgroundColors,
                   .lighting = &lighting,
                   .animation = &animation,
                   .catalog = &browser,
                   .windowProcedure = [this](const Message& message) { return ToolbarWindowProc(*this, message); }});
  toolbar.unloading = [this] { saveRecentColors(recentColors, settings); };
  browser.modelNamed = [this](const std::string& name) {
    if (toolbar.isLoaded()) toolbar.setCaptionFor(name);
  };
  browser.aboutAsked = [this] { showAboutBox(); };
}

void Library::showAboutBox() {
  if (about.isVisible()) return;
  ignoringErrors([this] { about.ShowModal(); });
  about.unload();  // also what could not be shown: the next call starts with a whole one
}

}  // namespace nerida

#include "control/library.h"

#include "control/toolbar_window_proc.h"

namespace nerida {

Library::Library(const Platform& platform)
    : desktop(platform.desktop),
      registry(platform.registry),
      settings(platform.settings),
      messages(platform.prompts),
      toolbar(state, platform.windows, desktop, paths, messages),
      lineThicknessMenu(state, platform.windows, desktop, toolbar),
      lineColors(state, platform.windows, desktop, toolbar, lineRole),
      surfaceColors(state, platform.windows, desktop, toolbar, surfaceRole),
      backgroundColors(state, platform.windows, desktop, toolbar, backgroundRole),
      animation(state, platform.windows, desktop, toolbar),
      lighting(state, platform.windows, desktop, toolbar),
      browser(state, platform.windows, paths, messages, platform.shell),
      about(state, platform.windows, paths) {
  toolbar.connect({&animation, &browser, [this](const Message& message) { return ToolbarWindowProc(*this, message); }});
  toolbar.unloading = [this] { saveRecentColors(recentColors, settings); };
  browser.modelNamed = [this](const std::string& name) {
    if (toolbar.isLoaded()) toolbar.setCaptionFor(name);
  };
}

}  // namespace nerida

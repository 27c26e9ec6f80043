#include "control/library.h"

#include "control/toolbar_window_proc.h"

namespace nerida {

Library::Library(const Platform& platform)
    : desktop(platform.desktop),
      registry(platform.registry),
      settings(platform.settings),
      messages(platform.prompts),
      toolbar(state, platform.windows, desktop, paths, messages),
      lineThicknessMenu(state, platform.windows, toolbar),
      lineColors(state, platform.windows, toolbar, lineRole),
      surfaceColors(state, platform.windows, toolbar, surfaceRole),
      backgroundColors(state, platform.windows, toolbar, backgroundRole),
      animation(state, platform.windows, toolbar),
      lighting(state, platform.windows, toolbar),
      browser(state, platform.windows, paths, messages, platform.shell),
      about(state, platform.windows, paths) {
  toolbar.connect({&animation, &browser, [this](const Message& message) { return ToolbarWindowProc(*this, message); }});
  toolbar.unloading = [this] { saveRecentColors(recentColors, settings); };
  browser.modelNamed = [this](const std::string& name) {
    if (toolbar.isLoaded()) toolbar.setCaptionFor(name);
  };
}

}  // namespace nerida

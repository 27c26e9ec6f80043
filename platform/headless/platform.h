#pragma once

#include "platform/headless/automation.h"
#include "platform/headless/desktop.h"
#include "platform/headless/files.h"
#include "platform/headless/prompts.h"
#include "platform/headless/registry.h"
#include "platform/headless/search_component.h"
#include "platform/headless/settings.h"
#include "platform/headless/shell.h"
#include "platform/headless/transcript.h"
#include "platform/headless/window.h"
#include "platform/platform.h"

namespace nerida::headless {

// A whole headless side, with one transcript.
struct HeadlessPlatform {
  HeadlessPlatform() {
    screen.ownClientCorner = [this](WindowHandle handle) { return windows.clientCornerOf(handle); };
    windows.activeChanged = [this](WindowHandle window) { screen.active = window; };
    boxes.colorDialogToggles = [this](bool open) { open ? windows.activateElsewhere() : windows.activateAgain(); };
  }
  HeadlessPlatform(const HeadlessPlatform&) = delete;
  HeadlessPlatform& operator=(const HeadlessPlatform&) = delete;

  Transcript transcript;
  Screen screen{transcript};
  Windows windows{transcript};
  Boxes boxes{transcript};
  MemoryRegistry registry;
  MemorySettings settings;
  RecordingShell shell{transcript};
  MemoryFiles files{transcript};
  PreparedSearch search{transcript};

  Platform services() { return {screen, windows, boxes, registry, settings, shell, files, search}; }
};

}  // namespace nerida::headless

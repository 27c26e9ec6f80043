#pragma once

#include <cstdint>

#include "platform/automation.h"
#include "platform/units.h"

namespace nerida {

struct Library;

// The public control. Creating one starts the library (UserControl_Initialize), destroying it tears everything down
// (UserControl_Terminate). No method throws; failures are shown to the user as each method says. All methods belong
// to the user-interface thread; any of them may be called from inside a call into the model.
class NeridaWindow {
 public:
  explicit NeridaWindow(Library& library);
  ~NeridaWindow();
  NeridaWindow(const NeridaWindow&) = delete;
  NeridaWindow& operator=(const NeridaWindow&) = delete;

  // The windows' real visibility. Neither loads a form.
  bool IsToolbarVisible();
  bool IsCatalogVisible();

  // Unloads every form, then lets go of the model. Always 0.
  std::int32_t ToolbarDispose();

  // Shows the toolbar with its top-left corner at a point in screen pixels. When either coordinate is 0, both are
  // replaced by the corner of the host window's client area, and the caller's variables hold that point afterwards.
  // Returns the toolbar's window, or -1 after a failure was shown.
  WindowHandle ToolbarShow(std::int16_t& x, std::int16_t& y);

  // Takes the hooks off and hides toolbar, catalog and popups. Always 0.
  std::int32_t ToolbarHide();

  // Binds the model (may be null: the failure is then reported as any other) and the host's window. A failing step is
  // reported and tried again until it succeeds. Returns the number of the last error met on the way, 0 without one.
  std::int32_t ToolbarInit(ObjectRef model, WindowHandle hostWindow);

  void ShowAboutBox();  // modal
  void ShowHelp();

  // Hides the toolbar and shows the catalog. Returns its window, or -1 after a failure was shown.
  WindowHandle ShowCatalog();

 private:
  void startLibrary();
  void loadForms();
  void registerForms();
  void UnloadAllForms();
  void unloadLeftovers();
  void releaseModel();

  Library& library;
};

}  // namespace nerida

#pragma once

#include <memory>
#include <optional>

#include "control/nerida_window.h"
#include "core/trace.h"

namespace nerida {

// The public control as its callers see it: every call of it, and every access to the model that it was given, is in
// the trace. Without one (null) this is the control itself. The methods are described there.
class TracedWindow {
 public:
  TracedWindow(Library& library, std::shared_ptr<Trace> trace);
  ~TracedWindow();
  TracedWindow(const TracedWindow&) = delete;
  TracedWindow& operator=(const TracedWindow&) = delete;

  bool IsToolbarVisible();
  bool IsCatalogVisible();
  std::int32_t ToolbarDispose();
  WindowHandle ToolbarShow(std::int16_t& x, std::int16_t& y);
  std::int32_t ToolbarHide();
  std::int32_t ToolbarInit(ObjectRef model, WindowHandle hostWindow);
  void ShowAboutBox();
  void ShowHelp();
  WindowHandle ShowCatalog();

 private:
  template <class Body>
  auto traced(const char* method, Body body);

  std::shared_ptr<Trace> trace;
  std::optional<NeridaWindow> control;  // absent only while it begins and ends
};

}  // namespace nerida

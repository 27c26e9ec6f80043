#pragma once

#include <optional>

#include "platform/automation.h"
#include "platform/preview.h"
#include "platform/win32/control_site.h"
#include "platform/win32/native_control.h"

namespace nerida {

// The preview control, looked up by its name in the registry and driven by its members' names. It is made when it is
// first asked for something. The keyboard goes to the control's own window and, moved on there, back to the form: the
// loop that dispatches our messages knows nothing of either.
class SystemPreview final : public ControlOf<Preview> {
 public:
  using ControlOf::ControlOf;
  void create() override;
  ~SystemPreview() override;

  std::string modelFile() override { return toText(object()->get("ModelFile")); }
  void setModelFile(const std::string& path) override { object()->let("ModelFile", path); }
  std::string modelName() override { return toText(object()->get("ModelName")); }
  void setModelName(const std::string& name) override { object()->let("ModelName", name); }
  std::string styleName() override { return toText(object()->get("StyleName")); }
  std::int32_t modelScale() override { return toInt32(object()->get("ModelScale")); }
  std::array<std::int32_t, 3> orientation() override;
  void load() override { object()->call("Load", {}); }

 private:
  ObjectRef object();
  RECT inside() const;
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  bool takesFocus() const override;
  void paintOn(HDC target) const;

  // In front of the control's window.
  static LRESULT CALLBACK watchedProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void watch(HWND window);
  void stopWatching();

  std::optional<HostedControl> control;
  HWND watched = nullptr;
  WNDPROC behind = nullptr;
};

}  // namespace nerida

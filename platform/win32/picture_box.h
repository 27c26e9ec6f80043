#pragma once

#include <optional>
#include <vector>

#include "platform/win32/accessible_parts.h"
#include "platform/win32/native_control.h"

namespace nerida {

class SystemPictureBox final : public ControlOf<PictureBox>, private ControlParts {
 public:
  using ControlOf::ControlOf;
  void create() override;
  ~SystemPictureBox() override;
  void repaint() override;
  void setFocus() override;
  void setTabStop(bool stops) override { tabStop = stops; }
  void setTooltip(const std::string& text) override;

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  bool takesFocus() const override { return isShown() && (keyDown || parts); }
  bool isTabStop() const override { return tabStop && takesFocus(); }
  void onHidden() override;
  void draw(HDC target) override;

  // Mouse and keyboard.
  bool onMouse(UINT message, LPARAM lParam);
  void onMouseMove(POINT point);
  void onButtonDown(POINT point);
  void onButtonUp(POINT point);
  bool onKey(WPARAM key, LPARAM flags);
  void announceFocus() const;
  void relayTooltip(UINT message, WPARAM wParam, LPARAM lParam);
  void offerTooltip(POINT point);

  // Parts.
  std::vector<DrawnPart> currentParts() const;
  std::optional<DrawnPart> partOf(int index) const;
  std::wstring wholeName() const override;
  LONG wholeRole() const override { return ROLE_SYSTEM_GROUPING; }
  int partCount() const override { return static_cast<int>(currentParts().size()); }
  bool isOneButton() const override { return pressPart && partCount() == 1; }
  std::wstring partName(int part) const override;
  DWORD wholeStateFlags() const override;
  DWORD partStateFlags(int part) const override;
  std::wstring partTooltip(int part) const;
  RECT partArea(int part) const override;
  int partAt(POINT point) const override;
  int focusedPart() const override;
  bool canPressPart(int part) const override;
  bool focusPart(int) override { return false; }  // where the focus is inside is the form's business
  void doPart(int part) override;

  std::wstring tooltip;
  int offeredPart = -1;
  std::wstring offeredName;
  bool tabStop = true;
  bool clickStarted = false;
  bool held = false;
  PartsAccessible* accessible = nullptr;  // holds a reference while it is not null
};

}  // namespace nerida

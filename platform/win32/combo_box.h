#pragma once

#include "platform/win32/native_control.h"

namespace nerida {

class SystemComboBox final : public ControlOf<ComboBox> {
 public:
  using ControlOf::ControlOf;
  void create() override;

  void clear() override;
  void addItem(const std::string& text) override;
  int count() const override;
  std::string item(int index) const override;
  int selected() const override { return current; }
  void select(int index) override;

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void onCommand(WORD notification) override;
  bool takesFocus() const override;
  void reposition() override;
  void fitHeight();
  int textHeight() const;  // in pixels
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

  int current = -1;  // as last reported: the system tells of its own changes only, and also of none
};

}  // namespace nerida

#pragma once

#include <windows.h>

#include <commctrl.h>

#include <vector>

#include "platform/list_view.h"
#include "platform/win32/handles.h"
#include "platform/win32/native_control.h"

namespace nerida {

// The items stay here; the system's list asks for those that it shows.
class SystemListView final : public ControlOf<ListView> {
 public:
  using ControlOf::ControlOf;
  void create() override;

  void setSmallIcons(const std::string& folder, const std::string& file, std::span<const char* const> specs) override;
  void clear() override;
  void add(ListItem item) override;
  void setTag(int index, const std::string& tag) override;
  int count() const override { return static_cast<int>(items.size()); }
  ListItem item(int index) const override;
  int selected() const override;
  void select(int index) override;
  void refresh() override;

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  LRESULT onNotify(const NMHDR& notification) override;
  bool takesFocus() const override;
  void reposition() override;
  void describe(LVITEMW& shown) const;
  int find(const NMLVFINDITEMW& asked) const;
  void unselect(UINT which);  // LVNI_SELECTED or LVNI_FOCUSED
  void tellCount();
  void tellCountLater();
  void clickLater(int index);
  void fitColumn();
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

  using UniqueImages = UniqueHandle<HIMAGELIST, ImageList_Destroy>;
  UniqueImages icons;
  std::vector<ListItem> items;
  int told = 0;  // items that the system's list knows of
  bool countIsDue = false;
  LONG columnWidth = 0;
  bool selecting = false;      // by the program
  bool mouseIsDown = false;    // inside the system's handling of a press
  bool mouseSelected = false;  // the press selected an item
  int clicked = -1;            // by the user, not raised yet
};

}  // namespace nerida

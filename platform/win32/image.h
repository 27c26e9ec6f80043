#pragma once

#include "platform/win32/handles.h"
#include "platform/win32/native_control.h"

namespace nerida {

// A picture as the system draws it.
class SystemPicture final : public StoredPicture {
 public:
  explicit SystemPicture(UniqueBitmap content) : bitmap(std::move(content)) {}
  // In the middle of an area, as large as it allows.
  void draw(HDC target, const RECT& area) const;

 private:
  UniqueBitmap bitmap;
};

class SystemImage final : public ControlOf<Image> {
 public:
  SystemImage(FormWindow& owner, const ControlLayout& row);
  void setPicture(std::shared_ptr<const StoredPicture> picture) override;

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void paintOn(HDC target) const;

  std::shared_ptr<const SystemPicture> shownPicture;
};

}  // namespace nerida

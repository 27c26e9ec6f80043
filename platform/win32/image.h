#pragma once

#include "platform/bitmap_resources.h"
#include "platform/win32/handles.h"
#include "platform/win32/native_control.h"

namespace nerida {

// A picture as it was read.
struct SystemPicture final : StoredPicture {
  explicit SystemPicture(Picture picture) : content(std::move(picture)) {}
  Size size() const override { return {content.width, content.height}; }

  const Picture content;
};

class SystemImage final : public ControlOf<Image> {
 public:
  SystemImage(FormWindow& owner, const ControlLayout& row);
  void create() override;
  void setPicture(std::shared_ptr<const StoredPicture> picture) override;
  void takePicture(std::shared_ptr<const StoredPicture> picture) override;
  void setTop(Twips top) override;
  Bounds bounds() const override { return current; }

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void place();
  void paintOn(HDC target);
  SIZE fit();

  std::shared_ptr<const SystemPicture> shownPicture;
  UniqueBitmap fitted;  // the picture in the size of the control
  SIZE fittedSize = {};
  Bounds current;
};

}  // namespace nerida

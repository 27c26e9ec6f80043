#pragma once

#include <windows.h>

#include "host/render/picture.h"

namespace nerida::host {

/// Sizes are given as pixels of a screen with 96 dots per inch.
struct Metrics {
  int dpi = 96;
  [[nodiscard]] int px(int at96) const { return MulDiv(at96, dpi, 96); }
};

inline int widthOf(const RECT& r) { return static_cast<int>(r.right - r.left); }
inline int heightOf(const RECT& r) { return static_cast<int>(r.bottom - r.top); }
/// Puts a picture of the area's size there.
void blit(HDC dc, const RECT& area, const Picture& picture);

inline RECT inflated(RECT r, int by) {
  InflateRect(&r, by, by);
  return r;
}

/// Chooses an object into a device context for the length of a scope.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc(dc), previous(SelectObject(dc, object)) {}
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;
  ~Selected() { SelectObject(dc, previous); }

 private:
  HDC dc;
  HGDIOBJ previous;
};

/// Owns a font, brush or bitmap.
template <typename Handle>
class GdiObject {
 public:
  explicit GdiObject(Handle handle) : handle(handle) {}
  GdiObject(const GdiObject&) = delete;
  GdiObject& operator=(const GdiObject&) = delete;
  ~GdiObject() { DeleteObject(handle); }
  [[nodiscard]] Handle get() const { return handle; }

 private:
  Handle handle;
};

}  // namespace nerida::host

#pragma once

#include <string>

#include "host/win32/drawing.h"

namespace nerida::host {

/// The line at the bottom of the document's window: what happened last, and what the user can do next.
class StatusStrip {
 public:
  explicit StatusStrip(Metrics metrics);

  [[nodiscard]] static RECT areaIn(HWND window, Metrics metrics);
  void paint(HDC dc, const RECT& area, const std::wstring& news, const std::wstring& hint) const;

 private:
  Metrics metrics;
  GdiObject<HFONT> font;
};

}  // namespace nerida::host

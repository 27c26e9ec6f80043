#pragma once

#include <string>

#include "host/win32/drawing.h"

namespace nerida::host {

/// Where the parts of the document stand in the window's client area.
struct PageLayout {
  RECT sheet{};
  RECT heading{};
  RECT introduction{};
  RECT object{};
  RECT caption{};
  RECT body{};
};

/// The document around the object: a desk, a sheet of paper, and text on it.
class PagePainter {
 public:
  explicit PagePainter(Metrics metrics);

  [[nodiscard]] PageLayout layOut(HDC dc, const RECT& desk) const;
  /// `caption` stands below the object.
  void paint(HDC dc, const RECT& desk, const PageLayout& layout, const std::wstring& caption) const;

 private:
  void paintSheet(HDC dc, const RECT& desk, const RECT& sheet) const;
  void paintBody(HDC dc, const RECT& area) const;
  [[nodiscard]] int textHeight(HDC dc, HFONT font, const wchar_t* text, int width) const;

  Metrics metrics;
  GdiObject<HFONT> headingFont, bodyFont, captionFont;
};

}  // namespace nerida::host

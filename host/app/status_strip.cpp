#include "host/app/status_strip.h"

#include <algorithm>

namespace nerida::host {
namespace {

constexpr int height = 24;

HFONT messageFont() {
  NONCLIENTMETRICSW system = {};
  system.cbSize = sizeof system;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof system, &system, 0);
  return CreateFontIndirectW(&system.lfMessageFont);
}

}  // namespace

StatusStrip::StatusStrip(Metrics metrics) : metrics(metrics), font(messageFont()) {}

RECT StatusStrip::areaIn(HWND window, Metrics metrics) {
  RECT area;
  GetClientRect(window, &area);
  area.top = std::max(area.top, area.bottom - metrics.px(height));
  return area;
}

void StatusStrip::paint(HDC dc, const RECT& area, const std::wstring& news, const std::wstring& hint) const {
  FillRect(dc, &area, GetSysColorBrush(COLOR_BTNFACE));
  RECT text = area;
  DrawEdge(dc, &text, BDR_RAISEDINNER, BF_TOP);
  InflateRect(&text, -metrics.px(10), 0);
  const Selected chosen(dc, font.get());
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
  constexpr UINT line = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
  DrawTextW(dc, hint.c_str(), -1, &text, line | DT_RIGHT);
  RECT left = text, needed = text;
  DrawTextW(dc, hint.c_str(), -1, &needed, line | DT_CALCRECT);
  left.right = std::max(left.left, text.right - widthOf(needed) - metrics.px(20));
  DrawTextW(dc, news.c_str(), -1, &left, line);
}

}  // namespace nerida::host

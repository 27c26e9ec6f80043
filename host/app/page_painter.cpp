#include "host/app/page_painter.h"

#include <algorithm>

namespace nerida::host {
namespace {

constexpr COLORREF deskColor = RGB(152, 156, 164);
constexpr COLORREF shadowColor = RGB(120, 124, 132);
constexpr COLORREF edgeColor = RGB(100, 104, 112);
constexpr COLORREF paperColor = RGB(255, 255, 255);
constexpr COLORREF headingColor = RGB(36, 48, 72);
constexpr COLORREF textColor = RGB(92, 96, 104);

constexpr const wchar_t* headingText = L"Things to Turn Around";
constexpr const wchar_t* introductionText =
    L"A picture shows one side of a thing. The object below has all of them: double-click it, tilt it with the "
    L"toolbar, try another style, and click beside it when it looks right. The page keeps what you chose.";
constexpr const wchar_t* bodyTexts[] = {
    L"Drawings have explained machines for centuries. An artist picked one moment and one point of view, and left the "
    L"rest to the reader. A model leaves nothing out.",
    L"Style matters as much as the view. A shaded model looks like the thing itself, an ink outline like a page of a "
    L"handbook, and a wireframe tells how it was put together.",
    L"Where something moves, let it move: models with an animation play it in place, once or for as long as the page "
    L"is open. The light can come from any side, and lines and surfaces take the colours of the text around them."};

// Not clipped: a hinted line may come out a little wider than it was measured.
constexpr UINT wrapped = DT_WORDBREAK | DT_NOPREFIX | DT_NOCLIP;

HFONT pageFont(Metrics metrics, int size, bool italic) {
  LOGFONTW font = {};
  font.lfHeight = -metrics.px(size);
  font.lfWeight = FW_NORMAL;
  font.lfItalic = italic ? TRUE : FALSE;
  font.lfQuality = ANTIALIASED_QUALITY;
  lstrcpyW(font.lfFaceName, L"Tahoma");
  return CreateFontIndirectW(&font);
}

void fill(HDC dc, const RECT& area, COLORREF color) {
  const GdiObject brush(CreateSolidBrush(color));
  FillRect(dc, &area, brush.get());
}

void write(HDC dc, RECT area, HFONT font, COLORREF color, const wchar_t* text, UINT format) {
  const Selected chosen(dc, font);
  SetTextColor(dc, color);
  SetBkMode(dc, TRANSPARENT);
  DrawTextW(dc, text, -1, &area, format);
}

}  // namespace

PagePainter::PagePainter(Metrics metrics)
    : metrics(metrics),
      headingFont(pageFont(metrics, 28, false)),
      bodyFont(pageFont(metrics, 14, false)),
      captionFont(pageFont(metrics, 13, true)) {}

int PagePainter::textHeight(HDC dc, HFONT font, const wchar_t* text, int width) const {
  const Selected chosen(dc, font);
  RECT area = {0, 0, width, 0};
  DrawTextW(dc, text, -1, &area, wrapped | DT_CALCRECT);
  return heightOf(area);
}

PageLayout PagePainter::layOut(HDC dc, const RECT& desk) const {
  const int gap = metrics.px(18);
  const int sheetWidth = std::clamp(widthOf(desk) - 2 * metrics.px(40), metrics.px(240), metrics.px(760));
  const int left = desk.left + (widthOf(desk) - sheetWidth) / 2;
  PageLayout layout;
  layout.sheet = {left, desk.top + metrics.px(24), left + sheetWidth,
                  std::max<LONG>(desk.bottom - metrics.px(24), desk.top + metrics.px(120))};
  const RECT column = {left + metrics.px(56), layout.sheet.top + metrics.px(40), layout.sheet.right - metrics.px(56),
                       layout.sheet.bottom - metrics.px(32)};
  const auto below = [&](LONG top, int height) { return RECT{column.left, top, column.right, top + height}; };

  layout.heading = below(column.top, textHeight(dc, headingFont.get(), headingText, widthOf(column)));
  layout.introduction =
      below(layout.heading.bottom + metrics.px(10), textHeight(dc, bodyFont.get(), introductionText, widthOf(column)));
  const LONG objectTop = layout.introduction.bottom + gap;
  const int room = static_cast<int>(column.bottom - objectTop) * 3 / 4;
  const int height = std::max(metrics.px(60), std::min(room, widthOf(column) * 3 / 4));
  const int width = std::min(widthOf(column), height * 4 / 3);
  layout.object = {left + (sheetWidth - width) / 2, objectTop, left + (sheetWidth - width) / 2 + width,
                   objectTop + height};
  layout.caption = below(layout.object.bottom + metrics.px(10), metrics.px(18));
  layout.body = {column.left, layout.caption.bottom + gap, column.right, column.bottom};
  return layout;
}

void PagePainter::paintSheet(HDC dc, const RECT& desk, const RECT& sheet) const {
  fill(dc, desk, deskColor);
  RECT shadow = sheet;
  OffsetRect(&shadow, metrics.px(4), metrics.px(4));
  fill(dc, shadow, shadowColor);
  fill(dc, inflated(sheet, 1), edgeColor);
  fill(dc, sheet, paperColor);
}

// A paragraph that would go beyond the end of the sheet is left for the next one.
void PagePainter::paintBody(HDC dc, const RECT& area) const {
  LONG top = area.top;
  for (const wchar_t* text : bodyTexts) {
    const LONG bottom = top + textHeight(dc, bodyFont.get(), text, widthOf(area));
    if (bottom > area.bottom) return;
    write(dc, {area.left, top, area.right, bottom}, bodyFont.get(), textColor, text, wrapped);
    top = bottom + metrics.px(10);
  }
}

void PagePainter::paint(HDC dc, const RECT& desk, const PageLayout& layout, const std::wstring& caption) const {
  paintSheet(dc, desk, layout.sheet);
  write(dc, layout.heading, headingFont.get(), headingColor, headingText, wrapped);
  write(dc, layout.introduction, bodyFont.get(), textColor, introductionText, wrapped);
  write(dc, layout.caption, captionFont.get(), textColor, caption.c_str(), DT_CENTER | DT_SINGLELINE | DT_NOPREFIX);
  paintBody(dc, layout.body);
}

}  // namespace nerida::host

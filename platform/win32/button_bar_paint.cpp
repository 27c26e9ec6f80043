// How a button bar looks.
#include <algorithm>

#include "platform/win32/bitmap_files.h"
#include "platform/win32/button_bar.h"
#include "platform/win32/form_window.h"

namespace nerida {
namespace {

// In pixels at 96 dpi.
constexpr int edge = 1;        // around the picture of a button
constexpr int captionGap = 2;  // between picture and caption
constexpr int captionEnd = 5;  // after the caption

PixelColor systemColor(int index) {
  const COLORREF color = GetSysColor(index);
  return RGB(GetBValue(color), GetGValue(color), GetRValue(color));  // the other byte order
}

Box boxOf(const RECT& area) { return {area.left, area.top, area.right, area.bottom}; }

struct Look {
  bool usable;
  bool hot;
  bool held;
  bool latched;
};

// Faces are tinted with the colour of selections: on desktops whose faces are nearly white, light and shadow alone
// would not tell the states apart. Returns the ground on which the picture is to lie.
PixelColor paintFace(PixelCanvas& canvas, Box box, const Look& look) {
  const PixelColor face = systemColor(COLOR_BTNFACE);
  if (!look.held && !look.latched && !look.hot) return face;
  const PixelColor tint = systemColor(COLOR_HIGHLIGHT);
  const PixelColor light = systemColor(COLOR_BTNHIGHLIGHT);
  const PixelColor shadow = systemColor(COLOR_BTNSHADOW);
  const Box inside = {box.left + 1, box.top + 1, box.right - 1, box.bottom - 1};
  if (look.held) {
    const PixelColor ground = mixed(face, tint, 38);
    canvas.fill(inside, ground);
    canvas.frame(box, mixed(tint, 0, 35), mixed(tint, light, 40));
    return ground;
  }
  if (look.latched) {
    const PixelColor ground = mixed(face, tint, look.hot ? 30 : 24);
    canvas.fillChecked(inside, ground, mixed(face, tint, look.hot ? 22 : 14));
    canvas.frame(box, mixed(tint, shadow, 50), mixed(tint, light, 45));
    return ground;
  }
  const PixelColor ground = mixed(light, tint, 10);
  canvas.fill(inside, ground);
  canvas.frame(box, mixed(light, tint, 30), mixed(shadow, tint, 50));
  return ground;
}

void paintPicture(PixelCanvas& canvas, const Picture& picture, POINT at, bool usable, PixelColor ground) {
  if (!isDark(ground)) {
    usable ? canvas.draw(picture, at.x, at.y) : canvas.drawGreyed(picture, at.x, at.y);
  } else if (usable) {
    canvas.drawOnDark(picture, at.x, at.y);
  } else {
    canvas.drawUnusableOnDark(picture, at.x, at.y, systemColor(COLOR_GRAYTEXT));
  }
}

}  // namespace

// The buttons of a bar that is taller than wide lie one below the other and share its height.
void SystemButtonBar::measure(BarLayout& measured) {
  const LONG count = static_cast<LONG>(measured.buttons.size());
  const SIZE bar = size();
  if (bar.cy <= bar.cx || count < 2) {
    measureRow(measured, bar);
    return;
  }
  for (LONG i = 0; i < count; ++i) {
    measured.buttons[static_cast<std::size_t>(i)].area = {0, bar.cy * i / count, bar.cx, bar.cy * (i + 1) / count};
  }
}

void SystemButtonBar::measureRow(BarLayout& measured, SIZE bar) {
  const Scale& scale = form().scale();
  const HDC dc = form().backBuffer().context();
  const Selected font(dc, form().font());
  LONG left = 0;
  for (BarButton& item : measured.buttons) {
    LONG width = scale.design(item.spec.width) + 2 * scale.design(edge);
    if (!item.caption.empty()) {
      SIZE text = {};
      GetTextExtentPoint32W(dc, item.caption.c_str(), static_cast<int>(item.caption.size()), &text);
      width += scale.design(captionGap) + text.cx + scale.design(captionEnd);
    }
    // A caption that needs more room than there is gets shorter; the button stays a whole one.
    const LONG right = left < bar.cx ? std::min(left + width, bar.cx) : left + width;
    item.area = {left, 0, right, bar.cy};
    left = right;
  }
}

const Picture* SystemButtonBar::pictureOf(BarButton& item) {
  if (!item.pictureSought) {
    item.pictureSought = true;
    if (!resources) resources = openBitmapFile(folder, file);
    item.picture = resources->picture(item.spec, form().scale().percent());
  }
  return item.picture ? &*item.picture : nullptr;
}

void SystemButtonBar::draw(HDC target) {
  const SIZE extent = size();
  if (extent.cx <= 0 || extent.cy <= 0) return;
  BackBuffer& buffer = form().backBuffer();
  PixelCanvas canvas = buffer.canvas(extent.cx, extent.cy);
  canvas.fill({0, 0, extent.cx, extent.cy}, systemColor(COLOR_BTNFACE));
  for (int i = 0; i < buttonCount(); ++i) paintButton(canvas, i);
  const Selected font(buffer.context(), form().font());
  SetBkMode(buffer.context(), TRANSPARENT);
  for (int i = 0; i < buttonCount(); ++i) paintCaption(buffer.context(), i);
  buffer.copyTo(target, extent.cx, extent.cy);
}

void SystemButtonBar::paintButton(PixelCanvas& canvas, int index) {
  BarButton& item = layouts[static_cast<std::size_t>(current)].buttons[static_cast<std::size_t>(index)];
  const bool held = index == pressed && index == hot;
  const Look look = {isUsable(index), index == hot || index == pressed, held, item.state == buttonDown};
  const Box box = boxOf(item.area);
  const PixelColor ground = paintFace(canvas, box, look);
  if (const Picture* picture = pictureOf(item)) {
    const bool isGreyAlready = enabled && item.spec.kind == 4;
    paintPicture(canvas, *picture, pictureOrigin(item, index), look.usable || isGreyAlready, ground);
  }
  if (index == focused && form().showsFocus() && GetFocus() == window()) {
    canvas.dottedFrame({box.left + 2, box.top + 2, box.right - 2, box.bottom - 2}, systemColor(COLOR_BTNTEXT));
  }
}

// What is down has sunk in by a pixel, with all that is on it.
POINT SystemButtonBar::pictureOrigin(const BarButton& item, int index) const {
  const Scale& scale = form().scale();
  const LONG sunk = looksDown(index) ? 1 : 0;
  const LONG height = item.picture ? item.picture->height : scale.design(item.spec.height);
  return {item.area.left + scale.design(edge) + sunk, (item.area.top + item.area.bottom - height) / 2 + sunk};
}

void SystemButtonBar::paintCaption(HDC dc, int index) {
  const BarButton& item = button(index);
  if (item.caption.empty()) return;
  const Scale& scale = form().scale();
  RECT text = item.area;
  text.left = pictureOrigin(item, index).x + scale.design(item.spec.width) + scale.design(captionGap);
  text.right -= scale.design(edge);
  OffsetRect(&text, 0, looksDown(index) ? 1 : 0);
  constexpr UINT format = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
  const auto write = [&](int color) {
    SetTextColor(dc, GetSysColor(color));
    DrawTextW(dc, item.caption.c_str(), static_cast<int>(item.caption.size()), &text, format);
  };
  if (isUsable(index)) {
    write(COLOR_BTNTEXT);
    return;
  }
  if (!isDark(systemColor(COLOR_BTNFACE))) {  // where it would outshine the text
    OffsetRect(&text, 1, 1);
    write(COLOR_BTNHIGHLIGHT);
    OffsetRect(&text, -1, -1);
  }
  write(COLOR_GRAYTEXT);
}

}  // namespace nerida

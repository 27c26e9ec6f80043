#include "host/app/embedded_object.h"

#include <algorithm>

#include "host/app/call_words.h"
#include "host/app/status_strip.h"

namespace nerida::host {
namespace {

constexpr UINT_PTR animationTimer = 1;
constexpr UINT framePeriod = 30;  // milliseconds; shows every frame of a 30 Hz animation
constexpr COLORREF restingFrame = RGB(176, 180, 188);
constexpr COLORREF activeFrame = RGB(36, 48, 72);

LONGLONG now() {
  LARGE_INTEGER count;
  QueryPerformanceCounter(&count);
  return count.QuadPart;
}

double secondsSince(LONGLONG start) {
  LARGE_INTEGER frequency;
  QueryPerformanceFrequency(&frequency);
  return static_cast<double>(now() - start) / static_cast<double>(frequency.QuadPart);
}

// Eight of them: the corners and the middles of the sides.
void paintHandles(HDC dc, const RECT& frame, int size) {
  const GdiObject brush(CreateSolidBrush(activeFrame));
  for (int column = 0; column < 3; ++column) {
    for (int row = 0; row < 3; ++row) {
      if (column == 1 && row == 1) continue;
      const LONG x = frame.left + (widthOf(frame) - size) * column / 2;
      const LONG y = frame.top + (heightOf(frame) - size) * row / 2;
      const RECT handle = {x, y, x + size, y + size};
      FillRect(dc, &handle, brush.get());
    }
  }
}

void paintInvitation(HDC dc, RECT area) {
  const Selected font(dc, GetStockObject(DEFAULT_GUI_FONT));
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, restingFrame);
  DrawTextW(dc, L"Open a model with File, Open model", -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

}  // namespace

EmbeddedObject::EmbeddedObject(Metrics metrics)
    : metrics(metrics), object(*this), dispatch(new ModelDispatch(object, *this)) {}

EmbeddedObject::~EmbeddedObject() {
  dispatch->disconnect();
  dispatch->Release();
}

void EmbeddedObject::place(const RECT& area) {
  bounds = area;
  outOfDate = true;
}

RECT EmbeddedObject::areaWithFrame() const { return inflated(bounds, metrics.px(8)); }

void EmbeddedObject::render() {
  if (!outOfDate) return;
  picture.resize(widthOf(bounds), heightOf(bounds));
  object.scene.render(picture);
  outOfDate = false;
}

void EmbeddedObject::paintActiveFrame(HDC dc) const {
  const RECT frame = areaWithFrame();
  const int saved = SaveDC(dc);
  ExcludeClipRect(dc, bounds.left, bounds.top, bounds.right, bounds.bottom);
  SetBkColor(dc, RGB(255, 255, 255));
  SetTextColor(dc, activeFrame);
  const GdiObject hatch(CreateHatchBrush(HS_BDIAGONAL, activeFrame));
  FillRect(dc, &frame, hatch.get());
  paintHandles(dc, frame, metrics.px(8));
  RestoreDC(dc, saved);
}

void EmbeddedObject::paint(HDC dc, bool active) {
  render();
  blit(dc, bounds, picture);
  if (!object.scene.hasModel()) paintInvitation(dc, bounds);
  if (active) {
    paintActiveFrame(dc);
    return;
  }
  const GdiObject brush(CreateSolidBrush(restingFrame));
  const RECT frame = inflated(bounds, 1);
  FrameRect(dc, &frame, brush.get());
}

void EmbeddedObject::togglePlaying() {
  Playback& animation = object.scene.animation;
  const bool starts = !animation.playing();
  if (starts && animation.currentFrame() >= animation.frameCount() - 1) animation.setCurrentFrame(0);
  animation.setPlaying(starts);
  object.animated();
}

void EmbeddedObject::timePasses() {
  const double seconds = secondsSince(lastTick);
  lastTick = now();
  if (object.scene.animation.tick(seconds)) displayChanged();
  if (!object.scene.animation.advancing()) animationChanged();
}

void EmbeddedObject::displayChanged() {
  outOfDate = true;
  if (window != nullptr) InvalidateRect(window, &bounds, FALSE);
}

void EmbeddedObject::animationChanged() {
  if (window == nullptr) return;
  if (object.scene.animation.advancing() && !IsIconic(window)) {
    lastTick = now();
    SetTimer(window, animationTimer, framePeriod, nullptr);
  } else {
    KillTimer(window, animationTimer);
  }
}

void EmbeddedObject::modelLoaded() {
  modelIsNew = true;
  if (window != nullptr) PostMessageW(window, messageModelLoaded, 0, 0);
}

void EmbeddedObject::catalogDone() {
  if (window != nullptr) PostMessageW(window, messageCatalogDone, 0, 0);
}

void EmbeddedObject::called(const CallRecord& record) {
  if (log) log->write(record);
  const std::string text = wordsFor(record);
  if (text.empty() || window == nullptr) return;
  words = wide(text);
  const RECT strip = StatusStrip::areaIn(window, metrics);
  InvalidateRect(window, &strip, FALSE);
}

}  // namespace nerida::host

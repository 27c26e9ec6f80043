#pragma once

#include "host/preview/preview.h"
#include "host/win32/drawing.h"

namespace nerida::host {

/// The window of a preview. The mouse turns the model (left button), scales it (wheel) and brings it home (double
/// click); so do the arrow keys, plus and minus, and Home. Its menu offers the drawing styles.
class PreviewWindow {
 public:
  PreviewWindow(Preview& preview, HWND parent, const RECT& place);
  PreviewWindow(const PreviewWindow&) = delete;
  PreviewWindow& operator=(const PreviewWindow&) = delete;
  ~PreviewWindow();

  [[nodiscard]] HWND handle() const { return window; }
  /// The picture is out of date, or the animation may have started or stopped.
  void previewChanged();

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void repaint();
  void paint();
  void paintFocus(HDC dc, RECT area) const;
  void startTurning(POINT at);
  void turnTo(POINT at);
  void turn(int up, int left);
  void scale(int steps);
  void goHome();
  bool pressKey(WPARAM key);
  void chooseStyle(POINT at);
  void timePasses();
  void runTimer();

  Preview& preview;
  HWND window = nullptr;
  Picture picture;
  bool outOfDate = true;
  bool turning = false;
  POINT last{};
  int wheel = 0;  // what did not yet make a step
  ULONGLONG lastTick = 0;
};

}  // namespace nerida::host

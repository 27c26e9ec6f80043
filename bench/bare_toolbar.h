#pragma once

#include <windows.h>

namespace nerida::bench {

/// What one would write without a button bar of one's own: the toolbar's window with the same buttons, captions,
/// tooltips and fields in the same places, made of the system's toolbar control, straight and without any model.
class BareToolbar {
 public:
  BareToolbar();
  ~BareToolbar() { DestroyWindow(frame); }
  BareToolbar(const BareToolbar&) = delete;
  BareToolbar& operator=(const BareToolbar&) = delete;

  /// Registers the window's class and the system's controls, once for the program.
  static void prepare();

  void show();
  void hide() { ShowWindow(frame, SW_HIDE); }
  HWND window() const { return frame; }

 private:
  HWND frame;
};

}  // namespace nerida::bench

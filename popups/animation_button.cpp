// The play and pause button of the playback bar, which the form draws and drives itself.
#include "popups/animation.h"
#include "popups/animation_drawing.h"

namespace nerida {

void frmAnimation::repaintPlayPause() {
  if (isLoaded()) picPlayPause().repaint();
}

void frmAnimation::picPlayPause_MouseMove() {
  if (hot) return;
  hot = true;
  repaintPlayPause();
}

void frmAnimation::picPlayPause_MouseDown() {
  if (pressed) return;
  hot = false;
  pressed = true;
  repaintPlayPause();
}

void frmAnimation::picPlayPause_MouseUp() {
  if (!pressed) return;
  pressed = false;
  hot = true;
  togglePlaying();
}

void frmAnimation::togglePlaying() {
  playing = !playing;
  playing ? SetPlay() : SetPause();
  repaintPlayPause();
}

// Only letting the mouse button go on the button ends a press.
void frmAnimation::Form_MouseMove() {
  if (!hot && !pressed) return;
  hot = false;
  repaintPlayPause();
}

void frmAnimation::picPlayPause_Focus(bool gained) {
  focused = gained;
  repaintPlayPause();
}

void frmAnimation::picPlayPause_Paint(Canvas& canvas) {
  const Bounds place = picPlayPause().bounds();
  const DrawnBox box{place.width.value, place.height.value, state.gTwipsPerPixelX, state.gTwipsPerPixelY};
  paintPlayPause(canvas, box, {playing, hot, pressed, focused, glyphColor});
}

void frmAnimation::picAniFrame_Paint(int index, Canvas& canvas) {
  const Bounds place = picAniFrame(index).bounds();
  const DrawnBox box{place.width.value, place.height.value, state.gTwipsPerPixelX, state.gTwipsPerPixelY};
  paintFramePlaceholder(canvas, box, index);
}

}  // namespace nerida

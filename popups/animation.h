#pragma once

#include "core/model_object.h"
#include "core/paths.h"
#include "popups/popup.h"

namespace nerida {

// The playback bar of an animated model. It stays open until it is told to hide, and mirrors the model's state.
class frmAnimation : public Popup {
 public:
  frmAnimation(State& state, WindowFactory& windows, Desktop& desktop, const Paths& paths, Messages& messages,
               PopupOpener& opener);

  // Bring the popup and the model into the playing or the paused state. Failures are shown.
  void SetPlay();
  void SetPause();
  // Raises the errors of reading the model's state and of showing the window.
  void ShowSelf(std::int16_t x, std::int16_t y) override;
  void HideSelf() override;
  // The frame field. Touching it loads the form.
  void setFrameText(const std::string& text) { window().textBox("txtFrame").setText(text); }

 protected:
  void Form_Load() override;

 private:
  static constexpr int placeholders = 4;

  ButtonBar& barRewind() { return loadedWindow().buttonBar("barRewind"); }
  ButtonBar& barForward() { return loadedWindow().buttonBar("barForward"); }
  ButtonBar& barLoop() { return loadedWindow().buttonBar("barLoop"); }
  PictureBox& picPlayPause() { return loadedWindow().pictureBox("picPlayPause"); }
  PictureBox& picAniFrame(int index) { return loadedWindow().pictureBox("picAniFrame", index); }
  TextBox& txtFrame() { return loadedWindow().textBox("txtFrame"); }

  void resetState();
  void connectEvents();
  void connectPlayPause();
  void buildBars();
  void makeSettings(ButtonBar& bar, bool enabled);
  void showPlaceholders(bool visible);
  void showFrame();
  void togglePlaying();
  void repaintPlayPause();
  std::string playPauseName() const { return playing ? "Pause" : "Play"; }
  void showFailure(const Error& failure);

  void barForward_ButtonPress(const std::string& key);
  void barLoop_ButtonPress();
  void barRewind_ButtonPress(const std::string& key);
  void Form_MouseMove();
  void picAniFrame_Paint(int index, Canvas& canvas);
  void picPlayPause_MouseDown();
  void picPlayPause_MouseMove();
  void picPlayPause_MouseUp();
  void picPlayPause_Paint(Canvas& canvas);
  void picPlayPause_Focus(bool gained);
  void txtFrame_EnterPressed();

  ModelObject model;
  const Paths& paths;
  Messages& messages;
  Rgb glyphColor = 0;
  bool playing = false;
  bool hot = false;      // the mouse is over picPlayPause
  bool pressed = false;  // it went down on picPlayPause and has not come up
  bool focused = false;  // picPlayPause has the keyboard
};

}  // namespace nerida

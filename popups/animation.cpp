#include "popups/animation.h"

#include "platform/value.h"
#include "popups/animation_drawing.h"
#include "popups/color_table.h"
#include "popups/frame_number.h"
#include "popups/popup_layouts.h"

namespace nerida {

frmAnimation::frmAnimation(State& state, WindowFactory& windows, Desktop& desktop, const Paths& paths,
                           Messages& messages, PopupOpener& opener)
    : Popup(state, windows, desktop, animationLayout, animationIndex, opener),
      model(state),
      paths(paths),
      messages(messages) {}

// The form stays usable with the bars as far as they could be built. That it has been hidden it remembers from one
// window to the next.
void frmAnimation::Form_Load() {
  resetState();
  connectEvents();
  markLoaded();
  const auto report = [this](const Error&) { messages.show("Unable to initialize Animation toolbar", toolbarTitle); };
  handleWith(report, [this] { buildBars(); });
}

void frmAnimation::resetState() {
  glyphColor = rgb(0, 0, 128);
  playing = false;
  hot = false;
  pressed = false;
  focused = false;
}

void frmAnimation::connectEvents() {
  barRewind().buttonPress = [this](const std::string& key) { barRewind_ButtonPress(key); };
  barForward().buttonPress = [this](const std::string& key) { barForward_ButtonPress(key); };
  barLoop().buttonPress = [this](const std::string&) { barLoop_ButtonPress(); };
  for (ButtonBar* bar : {&barRewind(), &barForward(), &barLoop()}) {
    bar->buttonMouseMove = [this](const std::string&) { Form_MouseMove(); };
  }
  for (int i = 0; i < placeholders; ++i) {
    picAniFrame(i).paint = [this, i](Canvas& canvas) { picAniFrame_Paint(i, canvas); };
  }
  connectPlayPause();
  txtFrame().enterPressed = [this] { txtFrame_EnterPressed(); };
  loadedWindow().mouseMoved = [this] { Form_MouseMove(); };
  loadedWindow().mouseLeft = [this] { Form_MouseMove(); };
  loadedWindow().closeRequested = [this] { handle(messages, [this] { HideSelf(); }); };
}

void frmAnimation::connectPlayPause() {
  PictureBox& button = picPlayPause();
  button.paint = [this](Canvas& canvas) { picPlayPause_Paint(canvas); };
  button.mouseMove = [this](Twips, Twips) { picPlayPause_MouseMove(); };
  button.mouseDown = [this](Twips, Twips) { picPlayPause_MouseDown(); };
  button.mouseUp = [this](Twips, Twips) { picPlayPause_MouseUp(); };
  button.gotFocus = [this] { picPlayPause_Focus(true); };
  button.lostFocus = [this] { picPlayPause_Focus(false); };
  button.keyDown = [this](Key key) {
    if (key != Key::choose) return false;
    togglePlaying();
    return true;
  };
  button.parts = [this] {
    const Bounds place = picPlayPause().bounds();
    return std::vector{DrawnPart{playPauseName(), {{0}, {0}, place.width, place.height}, pressed, focused}};
  };
  button.pressPart = [this](std::size_t) { togglePlaying(); };
}

void frmAnimation::makeSettings(ButtonBar& bar, bool enabled) {
  bar.setEnabled(enabled);
  bar.setResourceFolder(paths.SystemPath);
  bar.setShowsTooltips(true);
  bar.setResourceFile("Toolbar.res");
}

void frmAnimation::buildBars() {
  const auto add = [](ButtonBar& bar, const char* key, const char* bitmapSpec, const char* tooltip) {
    bar.addButton(key, bitmapSpec);
    bar.setTooltip(tooltip);
  };
  makeSettings(barRewind(), false);
  barRewind().openLayout("Enabled");
  add(barRewind(), "FirstFrame", "5, ani1stFrame.bmp, 0,0", "First Frame");
  add(barRewind(), "PreviousFrame", "5, aniBack1.bmp, 23,0", "Previous Frame");
  barRewind().recomputeLayout();
  barRewind().showLayout("Enabled");

  makeSettings(barForward(), false);
  barForward().openLayout("Enabled");
  add(barForward(), "NextFrame", "5, aniAhead1.bmp, 0,0", "Next Frame");
  add(barForward(), "LastFrame", "5, aniLastFrame.bmp, 23,0", "Last frame");
  barForward().recomputeLayout();
  barForward().showLayout("Enabled");

  // The tooltip of the loop button names the mode that a click switches to.
  makeSettings(barLoop(), true);
  barLoop().openLayout("Default");
  add(barLoop(), "LoopState", "5, aniLoop.bmp, 0,0", "Single Playback");
  barLoop().recomputeLayout();
  barLoop().openLayout("NotLooping");
  add(barLoop(), "NoLoop", "5, aniNoLoop.bmp, 0,0", "Repeat Playback");
  barLoop().recomputeLayout();
  barLoop().showLayout("Default");
}

void frmAnimation::SetPlay() {
  handleWith([this](const Error&) { messages.ShowErrorMessage(); },
             [this] {
               window();
               barForward().setVisible(false);
               barRewind().setVisible(false);
               showPlaceholders(true);
               txtFrame().setText(" -- ");
               const std::int64_t frame = model.AnimationCurrentFrame();
               if (frame >= std::int64_t{model.AnimationFrameCount()} - 1) model.setAnimationCurrentFrame(0);
               picPlayPause().setTooltip("Pause");
               playing = true;
               model.setAnimationState(true);
             });
}

void frmAnimation::SetPause() {
  handleWith([this](const Error&) { messages.ShowErrorMessage(); },
             [this] {
               window();
               barForward().setEnabled(true);
               barForward().showLayout("Enabled");
               barRewind().setEnabled(true);
               barRewind().showLayout("Enabled");
               barForward().setVisible(true);
               barRewind().setVisible(true);
               showPlaceholders(false);
               showFrame();
               picPlayPause().setTooltip("Play");
               playing = false;
               model.setAnimationState(false);
             });
}

void frmAnimation::showPlaceholders(bool visible) {
  for (int i = 0; i < placeholders; ++i) picAniFrame(i).setVisible(visible);
}

// People count frames from 1.
void frmAnimation::showFrame() {
  const std::int64_t frame = model.AnimationCurrentFrame();
  txtFrame().setText(std::to_string(frame + 1));
}

void frmAnimation::ShowSelf(std::int16_t x, std::int16_t y) {
  const OpenerWatch toolbar(state);
  const bool modelPlays = model.AnimationState();
  if (!toolbar.stillThere()) return;
  load();
  modelPlays ? SetPlay() : SetPause();
  if (!isLoaded() || !toolbar.stillThere()) return;
  loadedWindow().showTopmostAt({x, y});
  if (loadedWindow().showsFocus()) picPlayPause().setFocus();
  repaintPlayPause();
  closing = false;
  markShown(true);
}

void frmAnimation::HideSelf() {
  if (!closing) {
    hideWindow();
    opener.KillChild();
    opener.takeForeground();
    markShown(false);
  }
  closing = true;
}

void frmAnimation::showFailure(const Error& failure) {
  messages.show("Error occurred: " + std::to_string(failure.number) + ": " + failure.description, toolbarTitle);
}

void frmAnimation::barForward_ButtonPress(const std::string& key) {
  handleWith([this](const Error& failure) { showFailure(failure); },
             [&] {
               if (key == "NextFrame") model.AnimationIncrementFrame();
               if (key == "LastFrame") model.setAnimationCurrentFrame(roundToInt16(model.AnimationFrameCount() - 1.0));
               showFrame();
             });
}

void frmAnimation::barRewind_ButtonPress(const std::string& key) {
  handleWith([this](const Error&) { messages.ShowErrorMessage(); },
             [&] {
               if (key == "PreviousFrame") model.AnimationDecrementFrame();
               if (key == "FirstFrame") model.setAnimationCurrentFrame(0);
               showFrame();
             });
}

void frmAnimation::barLoop_ButtonPress() {
  handleWith([this](const Error& failure) { showFailure(failure); },
             [this] {
               const bool repeats = !model.AnimationLoopState();
               model.setAnimationLoopState(repeats);
               barLoop().showLayout(repeats ? "Default" : "NotLooping");
             });
}

// A typed number is the index of the frame, from 0, and what the model makes of it is shown as it is.
void frmAnimation::txtFrame_EnterPressed() {
  ignoringErrors([this] {
    const std::optional<std::int16_t> frame = frameNumberIn(txtFrame().text());
    if (!frame) return;
    model.setAnimationCurrentFrame(*frame);
    const std::string reached = std::to_string(model.AnimationCurrentFrame());
    txtFrame().setText(reached);
  });
}

}  // namespace nerida

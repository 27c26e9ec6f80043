#include "control/frm_about.h"

#include <algorithm>
#include <array>
#include <limits>

namespace nerida {
namespace {

constexpr int width = 503;
constexpr int height = 403;
constexpr int stripTop = 300;
constexpr int stripHeight = 78;
constexpr int tick = 100;  // milliseconds
constexpr std::int16_t usualPause = 50;
constexpr Rgb white = 0xFFFFFF;
constexpr int notInRegistry = -1;

constexpr Twips pixels(int count) { return {count * 15}; }

constexpr Bounds at(int left, int top, int wide, int high) {
  return {pixels(left), pixels(top), pixels(wide), pixels(high)};
}

// The label lies where the picture is white.
constexpr std::array controls{
    ControlLayout{"lblVersion", 0, ControlKind::label, at(24, 250, 455, 32)},
    ControlLayout{"picScroll", 0, ControlKind::pictureBox, at(0, stripTop, width, stripHeight), "Credits"},
    ControlLayout{"Image1", 0, ControlKind::image, {}, "The credits", "", {}, "picScroll"},
    ControlLayout{"imgBackground", 0, ControlKind::image, at(0, 0, width, height), "Zephra"},
};

constexpr FormLayout aboutLayout{
    "frmAbout", "About Zephra", FormFrame::borderless, pixels(width), pixels(height), controls, {}, true};

}  // namespace

frmAbout::frmAbout(State& state, WindowFactory& windows, Files& files, const Paths& paths)
    : Form(state, windows, aboutLayout, notInRegistry), files(files), paths(paths) {}

void frmAbout::Form_Load() {
  Window& form = loadedWindow();
  form.activated = [this] { Form_Activate(); };
  form.clicked = form.closeRequested = [this] { Form_Click(); };
  form.timer().elapsed = [this] { Timer1_Timer(); };
  form.label("lblVersion").setCaption(paths.ProductText);
  form.timer().setInterval(tick);
  form.image("imgBackground").setPicture(pictureOf("\\About Box.gif"));
  const auto credits = pictureOf("\\About_ZPCredits.gif");
  creditsHeight = credits ? credits->size().height : 0;
  rewind();
  form.image("Image1").takePicture(credits);
  pauseLength = usualPause;
  setStepsLeft();
  pauseAtStart();
}

void frmAbout::Form_Activate() {
  Window& form = loadedWindow();
  form.timer().setEnabled(true);
  form.label("lblVersion").setBackground(white);
  pauseAtStart();
  form.showTopmost();
}

void frmAbout::Form_Click() {
  loadedWindow().timer().setEnabled(false);
  pauseAtStart();
  HideSelf();
}

void frmAbout::Form_Unload() { loadedWindow().timer().setEnabled(false); }

void frmAbout::ShowModal() {
  if (isVisible()) return;
  load();
  const std::shared_ptr<Window> box = sharedWindow();  // the box may be unloaded while it is open
  box->showModal();
}

// Without a picture its place stays empty.
std::shared_ptr<const StoredPicture> frmAbout::pictureOf(const char* file) {
  std::shared_ptr<const StoredPicture> picture;
  ignoringErrors([&] { picture = files.loadPicture(paths.DictionaryPath + file); });
  return picture;
}

void frmAbout::pauseAtStart() {
  scrollState = Scroll::pauseAtStart;
  pauseLeft = pauseLength;
}

// Of credits that would take the better part of an hour the end is not shown.
void frmAbout::setStepsLeft() {
  constexpr std::int32_t most = std::numeric_limits<std::int16_t>::max();
  stepsLeft = static_cast<std::int16_t>(std::min(creditsHeight - stripHeight, most));
}

void frmAbout::Timer1_Timer() {
  switch (scrollState) {
    case Scroll::scrolling:
      scroll();
      break;
    case Scroll::pauseAtStart:
      if (pauseEnds()) scrollState = Scroll::scrolling;
      break;
    case Scroll::pauseAtEnd:
      if (pauseEnds()) scrollState = Scroll::rewind;
      break;
    case Scroll::rewind:
      rewind();
      pauseAtStart();
      break;
  }
}

// Credits that are no higher than the strip, or missing, have their end in sight from the start.
void frmAbout::scroll() {
  if (stepsLeft > 0) {
    loadedWindow().image("Image1").setTop(pixels(--creditsTop));
    --stepsLeft;
  }
  if (stepsLeft > 0) return;
  scrollState = Scroll::pauseAtEnd;
  setStepsLeft();
  pauseLeft = pauseLength;
}

void frmAbout::rewind() {
  creditsTop = 0;
  loadedWindow().image("Image1").setTop({});
}

}  // namespace nerida

#pragma once

#include <cstdint>

#include "core/form.h"
#include "core/paths.h"
#include "platform/files.h"

namespace nerida {

// The About box: a picture, the product's text, and the credits, which scroll through a strip. It is no member of the
// forms registry.
class frmAbout : public Form {
 public:
  frmAbout(State& state, WindowFactory& windows, Files& files, const Paths& paths);

  // Shows the box and returns when it is closed. While it is open a second call returns at once.
  void ShowModal();
  void HideSelf() override { hideWindow(); }

 protected:
  void Form_Load() override;
  // Hidden, the box ends its modal display.
  void Form_QueryUnload() override {
    if (isVisible()) hideWindow();
  }
  void Form_Unload() override;

 private:
  enum class Scroll : std::int16_t { scrolling = 0, pauseAtStart = 1, pauseAtEnd = 2, rewind = 3 };

  void Form_Activate();
  void Form_Click();
  void Timer1_Timer();

  std::shared_ptr<const StoredPicture> pictureOf(const char* file);
  void pauseAtStart();
  void setStepsLeft();
  void scroll();
  void rewind();
  bool pauseEnds() { return --pauseLeft == 0; }

  Files& files;
  const Paths& paths;

  Scroll scrollState = Scroll::pauseAtStart;
  std::int16_t stepsLeft = 0;  // pixels
  std::int16_t pauseLength = 0;
  std::int16_t pauseLeft = 0;  // ticks of the timer
  std::int16_t creditsTop = 0;
  std::int32_t creditsHeight = 0;
};

}  // namespace nerida

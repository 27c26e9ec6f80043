#pragma once

#include <string>

#include "tests/unit/desk.h"

namespace nerida {

// The playback bar of a model of ten frames that stands at the fourth.
class AnimationTest : public DeskTest {
 protected:
  void SetUp() override {
    setFrames(3, 10);
    model->values["AnimationLoopState"] = true;
    model->functions["AnimationIncrementFrame"] = nullptr;
    model->functions["AnimationDecrementFrame"] = nullptr;
    createInitAndShow();
  }

  void setFrames(std::int32_t current, std::int32_t count) {
    model->values["AnimationCurrentFrame"] = current;
    model->values["AnimationFrameCount"] = count;
  }

  frmAnimation& popup() { return library.animation; }
  headless::FormWindow& window() const { return form("frmAnimation"); }
  headless::Bar& bar(const char* name) const { return window().bar(name); }
  headless::Picture& button() const { return window().picture("picPlayPause"); }
  headless::Text& txtFrame() const { return window().text("txtFrame"); }

  void open(bool playing = false) {
    model->values["AnimationState"] = playing;
    popup().ShowSelf(1, 1);
    take();
  }

  static Lines playing(const Lines& reads) {
    Lines lines = {"barForward: hidden",      "barRewind: hidden",       "picAniFrame(0): visible",
                   "picAniFrame(1): visible", "picAniFrame(2): visible", "picAniFrame(3): visible",
                   "txtFrame: text  -- "};
    lines.insert(lines.end(), reads.begin(), reads.end());
    lines.push_back("model: AnimationState = True");
    return lines;
  }
  static Lines pausing(const std::string& frame) {
    return {"barForward: enabled",          "barForward: show Enabled",     "barRewind: enabled",
            "barRewind: show Enabled",      "barForward: visible",          "barRewind: visible",
            "picAniFrame(0): hidden",       "picAniFrame(1): hidden",       "picAniFrame(2): hidden",
            "picAniFrame(3): hidden",       "model: AnimationCurrentFrame", "txtFrame: text " + frame,
            "model: AnimationState = False"};
  }
  const Lines readsOnTheWay{"model: AnimationCurrentFrame", "model: AnimationFrameCount"};
};

}  // namespace nerida

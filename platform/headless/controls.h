#pragma once

#include <string>
#include <vector>

#include "platform/canvas.h"
#include "platform/control.h"
#include "platform/headless/keyboard_focus.h"
#include "platform/headless/transcript.h"

namespace nerida::headless {

// What the headless controls share: a name, a place and a visible flag, written to the transcript when it is set.
template <class Kind>
class Basic : public Kind {
 public:
  Basic(Transcript& transcript, std::string name, Bounds bounds)
      : name(std::move(name)), transcript(transcript), place(bounds) {}

  void setVisible(bool value) override {
    visible = value;
    note(value ? "visible" : "hidden");
  }
  bool isVisible() const override { return visible; }
  Bounds bounds() const override { return place; }

  std::string name;

 protected:
  void note(const std::string& what) { transcript.add(name + ": " + what); }

  Transcript& transcript;
  Bounds place;
  bool visible = true;
};

class Combo : public Basic<ComboBox> {
 public:
  using Basic::Basic;
  void clear() override;
  void addItem(const std::string& text) override;
  int count() const override { return static_cast<int>(entries.size()); }
  std::string item(int index) const override;
  int selected() const override { return selection; }
  void select(int index) override;

  // The user opens the list and picks an entry by its text.
  void choose(const std::string& text);

  std::vector<std::string> entries;

 private:
  int selection = -1;
};

class Text : public Basic<TextBox> {
 public:
  using Basic::Basic;
  std::string text() const override { return content; }
  void setText(const std::string& value) override;

  // The user types a text in place of the old one and presses Enter.
  void enter(const std::string& typed);

  std::string content;
};

class Picture : public Basic<PictureBox> {
 public:
  Picture(Transcript& transcript, std::string name, Bounds bounds, KeyboardFocus& focus)
      : Basic(transcript, std::move(name), bounds), focus(focus) {}
  void repaint() override { note("repaint"); }
  void setFocus() override;
  void setTabStop(bool stops) override { isTabStop = stops; }
  void setTooltip(const std::string& text) override { tooltip = text; }

  // The user's mouse and keyboard, and a focus that goes elsewhere.
  void movePointer(Twips x, Twips y);
  void pressAt(Twips x, Twips y);
  void releaseAt(Twips x, Twips y);
  bool key(Key pressed);
  void loseFocus();
  // What the control draws now, a line for each thing: "fill 0,0 to 30,15 in #0000FF", "box 0,0 to 30,15 in system 16".
  std::vector<std::string> draw() const;

  std::string tooltip;
  bool isTabStop = true;

 private:
  KeyboardFocus& focus;
};

class PushButton : public Basic<Button> {
 public:
  using Basic::Basic;
  void press() const {
    if (click) click();
  }
};

class StillPicture : public Basic<Image> {
 public:
  using Basic::Basic;
  void setPicture(std::shared_ptr<const StoredPicture> value) override { picture = std::move(value); }
  void takePicture(std::shared_ptr<const StoredPicture> value) override;
  void setTop(Twips top) override { place.top = top; }
  void press() const {
    if (click) click();
  }

  std::shared_ptr<const StoredPicture> picture;
};

class Caption : public Basic<Label> {
 public:
  using Basic::Basic;
  void setCaption(const std::string& value) override;
  void setBackground(Rgb color) override;

  void movePointer() const;
  void press() const;
  void release(bool inside) const;
  void click() const;          // down and up
  void pressAndLeave() const;  // down, and up elsewhere

  std::string caption;
};

}  // namespace nerida::headless

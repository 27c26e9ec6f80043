#include "platform/headless/controls.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <stdexcept>

#include "platform/error.h"
#include "platform/headless/recording_canvas.h"

namespace nerida::headless {

void Combo::clear() {
  entries.clear();
  selection = -1;
  note("clear");
}

void Combo::addItem(const std::string& text) {
  entries.push_back(text);
  note("add " + text);
}

std::string Combo::item(int index) const {
  if (index < 0 || index >= count()) throw Error(error::subscriptOutOfRange);
  return entries[static_cast<std::size_t>(index)];
}

void Combo::select(int index) {
  if (index < -1 || index >= count()) throw Error(error::subscriptOutOfRange);
  if (index == selection) return;
  selection = index;
  note("select " + std::to_string(index));
  if (click) click();
}

void Combo::choose(const std::string& text) {
  const auto found = std::find(entries.begin(), entries.end(), text);
  if (found == entries.end()) throw std::logic_error(name + " has no entry " + text);
  select(static_cast<int>(found - entries.begin()));
}

void Text::setText(const std::string& value) {
  content = value;
  note("text " + value);
}

void Text::enter(const std::string& typed) {
  content = typed;
  if (enterPressed) enterPressed();
}

std::vector<std::string> Picture::draw() const {
  RecordingCanvas canvas(focus.isShown);
  if (paint) paint(canvas);
  return canvas.lines;
}

void Picture::setFocus() {
  const bool came = focus.give(this, [this] {
    if (lostFocus) lostFocus();
  });
  if (came && gotFocus) gotFocus();
}

void Picture::loseFocus() {
  focus.forget(this);
  if (lostFocus) lostFocus();
}

void Picture::movePointer(Twips x, Twips y) {
  if (mouseMove) mouseMove(x, y);
}

void Picture::pressAt(Twips x, Twips y) {
  focus.isShown = false;
  if (mouseDown) mouseDown(x, y);
}

void Picture::releaseAt(Twips x, Twips y) {
  if (mouseUp) mouseUp(x, y);
}

bool Picture::key(Key pressed) {
  focus.isShown = true;
  return keyDown && keyDown(pressed);
}

void StillPicture::takePicture(std::shared_ptr<const StoredPicture> value) {
  const Size size = value ? value->size() : Size{};
  place.width = {size.width * 15};
  place.height = {size.height * 15};
  picture = std::move(value);
}

void Caption::movePointer() const {
  if (mouseMove) mouseMove();
}

void Caption::press() const {
  if (mouseDown) mouseDown();
}

void Caption::release(bool inside) const {
  if (mouseUp) mouseUp();
  if (inside && Label::click) Label::click();
}

void Caption::click() const {
  press();
  release(true);
}

void Caption::pressAndLeave() const {
  press();
  release(false);
}

void Caption::setCaption(const std::string& value) {
  caption = value;
  note("caption " + value);
}

void Caption::setBackground(Rgb color) {
  std::array<char, 16> written{};
  std::snprintf(written.data(), written.size(), "on #%06X", static_cast<unsigned>(color));
  note(written.data());
}

}  // namespace nerida::headless

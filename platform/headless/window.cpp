#include "platform/headless/window.h"

#include <algorithm>
#include <stdexcept>

#include "platform/error.h"
#include "platform/headless/prompts.h"

namespace nerida::headless {
namespace {

std::string indexed(const ControlLayout& control, bool inArray) {
  return inArray ? std::string(control.name) + "(" + std::to_string(control.index) + ")" : std::string(control.name);
}

bool isInArray(const FormLayout& layout, const ControlLayout& control) {
  return std::count_if(layout.controls.begin(), layout.controls.end(),
                       [&](const ControlLayout& other) { return std::string_view(other.name) == control.name; }) > 1;
}

std::string written(Point point) { return "(" + std::to_string(point.x) + ", " + std::to_string(point.y) + ")"; }

}  // namespace

FormWindow::FormWindow(Windows& windows, const FormLayout& layout, WindowHandle handle)
    : caption(layout.caption),
      height(layout.height),
      layout(layout),
      menuBar(windows.transcript, layout.menu),
      clock(windows.transcript, layout.name),
      windows(windows),
      number(handle) {
  createControls();
  windows.living.push_back(this);
  note("load");
}

// The system's window, too, goes without a further event. The object stays with the others that have gone: it may be
// inside one of its own events.
void FormWindow::dispose() {
  for (const auto& [key, picture] : pictures) {
    windows.focus.forget(picture.get());
  }
  for (const auto& [key, bar] : bars) windows.focus.forget(bar.get());
  if (windows.active == this) windows.active = nullptr;
  if (windows.activeBefore == this) windows.activeBefore = nullptr;
  std::erase(windows.living, this);
  visible = false;
  disposed = true;
  clock.stopWithItsForm();
  note("unload");
  windows.gone.emplace_back(this);
}

void FormWindow::createControls() {
  for (const ControlLayout& control : layout.controls) {
    const std::string name = indexed(control, isInArray(layout, control));
    const std::pair key(std::string(control.name), control.index);
    switch (control.kind) {
      case ControlKind::buttonBar:
        bars[key] = std::make_unique<Bar>(windows.transcript, name, control.bounds, windows.focus);
        break;
      case ControlKind::comboBox:
        combos[key] = std::make_unique<Combo>(windows.transcript, name, control.bounds);
        break;
      case ControlKind::textBox:
        texts[key] = std::make_unique<Text>(windows.transcript, name, control.bounds);
        texts[key]->content = control.text;
        break;
      case ControlKind::pictureBox:
        pictures[key] = std::make_unique<Picture>(windows.transcript, name, control.bounds, windows.focus);
        break;
      case ControlKind::label:
        labels[key] = std::make_unique<Caption>(windows.transcript, name, control.bounds);
        break;
      case ControlKind::button:
        buttons[key] = std::make_unique<PushButton>(windows.transcript, name, control.bounds);
        break;
      case ControlKind::image:
        images[key] = std::make_unique<StillPicture>(windows.transcript, name, control.bounds);
        break;
      case ControlKind::listView:
        lists[key] = std::make_unique<Items>(windows.transcript, name, control.bounds);
        break;
      case ControlKind::preview:
        previews[key] = std::make_unique<PreviewControl>(windows.transcript, name, control.bounds);
        break;
    }
  }
}

template <class C>
C* FormWindow::find(ByName<C>& controls, const std::string& name, int index) {
  const auto found = controls.find({name, index});
  if (found == controls.end()) throw std::logic_error(std::string(layout.name) + " has no control " + name);
  return found->second.get();
}

void FormWindow::note(const std::string& what) { windows.transcript.add(std::string(layout.name) + ": " + what); }

void FormWindow::setCaption(const std::string& text) {
  caption = text;
  note("caption " + text);
}

void FormWindow::setHeight(Twips value) {
  height = value;
  note("height " + std::to_string(value.value));
}

Size FormWindow::sizeInPixels() const { return {layout.width.value / 15, height.value / 15}; }

// Like the system's, a window that is shown becomes the active one, and one that is hidden stops being it.
void FormWindow::setVisible(bool value) {
  if (visible == value && (!value || windows.active == this)) return;
  visible = value;
  if (value) {
    windows.activate(this);
  } else if (windows.active == this) {
    windows.activate(nullptr);
  }
}

bool FormWindow::showsFocus() const { return windows.focus.isShown; }

void FormWindow::showTopmostAt(Point point) {
  topLeft = point;
  note("show topmost at " + written(point));
  setVisible(true);
}

void FormWindow::showTopmost() {
  note("show topmost");
  setVisible(true);
}

void FormWindow::hide() {
  note("hide");
  setVisible(false);
}

void FormWindow::showModal() {
  note("show modal");
  setVisible(true);
  FormWindow* const before = std::exchange(windows.modal, this);
  if (windows.duringModal) windows.duringModal(*this);
  windows.modal = before;
  if (visible && windows.find(layout.name) == this) throw TestEnded{std::string(layout.name) + " waits for a user"};
  note("modal end");
}

void FormWindow::hook(WindowProcedure procedure) {
  if (isHooked()) return;
  hookProcedure = std::move(procedure);
  note("hook");
}

void FormWindow::unhook() {
  if (!isHooked()) return;
  hookProcedure = nullptr;
  note("unhook");
}

std::intptr_t FormWindow::callPrevious(const Message& message) {
  note("previous procedure gets message " + std::to_string(message.number));
  passedOn.push_back(message);
  return previousAnswer;
}

std::intptr_t FormWindow::send(std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) {
  const WindowProcedure procedure = hookProcedure;  // it may be taken off while it runs
  return procedure ? procedure({number, message, wParam, lParam}) : 0;
}

int FormWindow::popUpMenuRightAligned(std::span<const char* const> captions, Twips x, Twips y) {
  note("menu ending at " + std::to_string(x.value) + ", " + std::to_string(y.value));
  windows.lastMenu.assign(captions.begin(), captions.end());
  if (windows.duringMenu) windows.duringMenu();
  if (windows.menuChoices.empty()) throw TestEnded{"a menu waits for a user"};
  const int choice = windows.menuChoices.front();
  windows.menuChoices.pop_front();
  return choice;
}

void FormWindow::raise(const std::function<void()>& event) {
  if (!disposed && event) event();
}

void FormWindow::userCloses() { raise(closeRequested); }

void FormWindow::userActivates() { windows.activate(this); }

void FormWindow::userMovesPointer() { raise(mouseMoved); }

void FormWindow::userClicks() { raise(clicked); }

std::shared_ptr<Window> Windows::create(const FormLayout& layout) {
  const auto failure = creationFailures.find(layout.name);
  if (failure != creationFailures.end()) throw Error(failure->second);
  auto form = std::make_unique<FormWindow>(*this, layout, nextHandle++);
  return {form.release(), [](FormWindow* leaving) { leaving->dispose(); }};
}

FormWindow* Windows::find(const std::string& name) const {
  for (FormWindow* window : living) {
    if (name == window->layout.name) return window;
  }
  return nullptr;
}

// The focus goes after the activation: who loses it can see which window is active by then.
void Windows::activate(FormWindow* window) {
  if (active == window) return;
  FormWindow* before = std::exchange(active, window);
  if (activeChanged) activeChanged(window ? window->handle() : 0);
  if (before) before->raise(before->deactivated);
  focus.take();
  if (window && active == window) window->raise(window->activated);
}

void Windows::activateElsewhere() {
  activeBefore = active;
  activate(nullptr);
}

void Windows::activateAgain() {
  FormWindow* window = std::exchange(activeBefore, nullptr);
  if (window && window->isVisible()) activate(window);
}

std::optional<Point> Windows::clientCornerOf(WindowHandle handle) const {
  for (const FormWindow* window : living) {
    if (window->handle() == handle) return window->clientOrigin();
  }
  return std::nullopt;
}

void Windows::activateApplication(bool activeNow) {
  for (FormWindow* window : std::vector(living)) {
    if (std::find(living.begin(), living.end(), window) != living.end()) {
      window->send(messageActivateApplication, activeNow ? 1 : 0);
    }
  }
}

}  // namespace nerida::headless

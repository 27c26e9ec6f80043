#include "core/form.h"

namespace nerida {
namespace {

class Unloading {
 public:
  explicit Unloading(State& state) : state(state) { ++state.unloading; }
  ~Unloading() { --state.unloading; }
  Unloading(const Unloading&) = delete;
  Unloading& operator=(const Unloading&) = delete;

 private:
  State& state;
};

}  // namespace

Form::Form(State& state, WindowFactory& windows, const FormLayout& layout, int index)
    : state(state), windows(windows), layout(layout), index(index) {}

void Form::load() {
  if (isLoaded()) {
    if (loadCompleted) markLoaded();
    return;
  }
  if (state.controls == 0) throw Error(error::objectNotSet);
  currentWindow = windows.create(layout);
  loadCompleted = false;
  Form_Load();
}

void Form::unload() {
  if (!isLoaded()) return;
  const std::weak_ptr<Window> leaving = currentWindow;
  const auto isGone = [&] { return !isLoaded() || currentWindow != leaving.lock(); };
  const Unloading whileUnloading(state);
  ignoringErrors([&] { Form_QueryUnload(); });
  if (isGone()) return;  // the model had the form unloaded from inside
  ignoringErrors([&] { Form_Unload(); });
  if (isGone()) return;
  markUnloaded();
  currentWindow.reset();
}

Window& Form::window() {
  load();
  return loadedWindow();
}

Window& Form::loadedWindow() {
  if (!isLoaded()) throw Error(error::objectNotSet);
  return *currentWindow;
}

void Form::hideWindow() {
  if (isLoaded()) currentWindow->hide();
}

void Form::markLoaded() {
  loadCompleted = true;
  if (index >= 0) state.gFormLoaded[static_cast<std::size_t>(index)] = true;
}

void Form::markUnloaded() {
  if (index < 0) return;
  state.gFormLoaded[static_cast<std::size_t>(index)] = false;
  markShown(false);
}

}  // namespace nerida

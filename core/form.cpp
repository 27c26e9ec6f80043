#include "core/form.h"

namespace nerida {

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
  ignoringErrors([&] { Form_QueryUnload(); });
  ignoringErrors([&] { Form_Unload(); });
  markUnloaded();
  currentWindow.reset();
}

Window& Form::window() {
  load();
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

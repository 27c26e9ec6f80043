#pragma once

#include <memory>

#include "core/messages.h"
#include "core/state.h"
#include "core/trap.h"
#include "platform/window.h"

namespace nerida {

// A window of the library with its program. One instance of each lives as long as the library; its window comes with
// load() and goes with unload().
class Form {
 public:
  Form(State& state, WindowFactory& windows, const FormLayout& layout, int index);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  // Creates the hidden window and runs Form_Load. On a loaded form it only marks the form as loaded again, if its load
  // had come to its end. Error 91 when no control lives any more; 7 when there can be no window.
  void load();
  // Form_QueryUnload, Form_Unload, and the window is gone. Nothing on a form that is not loaded. Never fails.
  void unload();
  bool isLoaded() const { return currentWindow != nullptr; }
  // The window's real visibility; false when not loaded.
  bool isVisible() const { return isLoaded() && currentWindow->isVisible(); }
  // The form's entry in the registry.
  bool isMarkedShown() const { return state.gFormShown[static_cast<std::size_t>(index)]; }
  // Touching the handle loads the form.
  WindowHandle hWnd() { return window().handle(); }

  // Closes the form in its own way, telling the model or the toolbar.
  virtual void HideSelf() = 0;

  // Of the bare window, telling nobody: for the time in which another application is in front.
  void hideWindow();
  void showWindowTopmost() { window().showTopmost(); }
  void placeTopmost(Point topLeft) { window().showTopmostAt(topLeft); }

 protected:
  virtual void Form_Load() = 0;
  virtual void Form_QueryUnload() {}
  virtual void Form_Unload() {}

  // The window, loaded if need be, as touching any control of a form loads it.
  Window& window();
  // The window, where the model may have taken the form down inside a call: error 91 then, and no window comes back.
  Window& loadedWindow();
  // Keeps the window object alive where its form may be unloaded meanwhile.
  std::shared_ptr<Window> sharedWindow() const { return currentWindow; }

  void markLoaded();
  void markUnloaded();
  void markShown(bool shown) { state.gFormShown[static_cast<std::size_t>(index)] = shown; }

  // Runs an event handler: a failure ends it and is reported, unless the form went away under it or forms are being
  // unloaded.
  template <class Report, class Body>
  void handleWith(Report&& report, Body&& body) {
    const bool wasLoaded = isLoaded();
    const std::weak_ptr<Window> before = currentWindow;
    trap(body, [&](const Error& failure) {
      const bool gone = wasLoaded && (!isLoaded() || before.lock() != currentWindow);
      if (!gone && state.unloading == 0) report(failure);
    });
  }
  template <class Body>
  void handle(Messages& messages, Body&& body) {
    handleWith([&](const Error& failure) { messages.report(failure); }, body);
  }

  State& state;

 private:
  WindowFactory& windows;
  const FormLayout& layout;
  int index;
  bool loadCompleted = false;
  std::shared_ptr<Window> currentWindow;
};

}  // namespace nerida

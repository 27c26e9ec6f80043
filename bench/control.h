#pragma once

#include <ActiveNeridaToolbar_h.h>
#include <windows.h>

#include <filesystem>
#include <functional>

#include "host/app/model_dispatch.h"

namespace nerida::bench {

/// The demo host's model, without a host around it. `moved` runs inside each member that changes the picture.
class Model : public host::ModelSite, public host::CallListener {
 public:
  Model() : object(*this), dispatch(new host::ModelDispatch(object, *this)) {}
  ~Model() override { dispatch->Release(); }
  Model(const Model&) = delete;
  Model& operator=(const Model&) = delete;

  IDispatch* automation() const { return dispatch; }
  void open(const std::filesystem::path& file) { object.open(file); }
  // False when there is no such style.
  bool setLookStyle(const char* name) { return object.scene.setLookStyle(name); }
  std::function<void()> moved;

 private:
  void displayChanged() override {
    if (moved) moved();
  }
  void animationChanged() override {}
  void modelLoaded() override {}
  void catalogDone() override {}
  void called(const host::CallRecord&) override {}

  host::ModelObject object;
  host::ModelDispatch* dispatch;
};

/// The registered control with its toolbar on the screen, as a host makes it.
class Control {
 public:
  explicit Control(Model& model);
  ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  void show();
  void hide();
  /// The catalog's window, shown.
  HWND showCatalog() const;
  HWND window() const { return toolbar; }

 private:
  _NeridaWindow* control = nullptr;
  HWND toolbar = nullptr;
};

/// Draws what is still to be drawn of a window, to the end.
void paintNow(HWND window);

/// Ends the program when something has gone wrong: a figure of something that did not happen is worth nothing.
void require(bool happened, const char* what);

/// Lets the messages through that wait for this thread.
void pumpMessages();

}  // namespace nerida::bench

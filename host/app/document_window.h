#pragma once

#include "host/app/embedded_object.h"
#include "host/app/in_place_editing.h"
#include "host/app/options.h"
#include "host/app/page_painter.h"
#include "host/app/status_strip.h"

namespace nerida::host {

/// The document: a page with the object on it, in a window with a menu.
class DocumentWindow {
 public:
  DocumentWindow(HINSTANCE program, Metrics metrics);
  DocumentWindow(const DocumentWindow&) = delete;
  DocumentWindow& operator=(const DocumentWindow&) = delete;

  /// Throws std::runtime_error when the log or the window cannot be made.
  void create(const Options& options);
  /// A broken file gives a message and changes nothing.
  void open(const std::filesystem::path& model);
  void activate();

  [[nodiscard]] HWND handle() const { return window; }

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void command(WORD id);
  void keyDown(WPARAM key);
  void buttonDown(POINT point);
  void doubleClick(POINT point);
  void resized(WPARAM how);
  void paint();
  void chooseModel();
  void showTitle();
  void about();
  void showMenuState(HMENU menu) const;
  void deactivate();
  void close();

  /// Runs something of the control's and shows its failure; then draws the object's frame anew.
  template <typename Action>
  void edit(Action action);
  void say(const std::string& text, UINT icon) const;
  [[nodiscard]] RECT desk() const;
  [[nodiscard]] RECT statusStrip() const;

  HINSTANCE program;
  Metrics metrics;
  HWND window = nullptr;
  EmbeddedObject object;
  InPlaceEditing editing;
  PagePainter painter;
  PageLayout layout;
  StatusStrip status;
};

}  // namespace nerida::host

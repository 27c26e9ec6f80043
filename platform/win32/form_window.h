#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/win32/back_buffer.h"
#include "platform/win32/form_menu.h"
#include "platform/win32/handles.h"
#include "platform/win32/module.h"
#include "platform/win32/native_control.h"
#include "platform/win32/scale.h"
#include "platform/win32/timer.h"
#include "platform/win32/tooltips.h"
#include "platform/win32/window_class.h"
#include "platform/window.h"

namespace nerida {

// A form and its controls. The system's windows are made when one of them is first needed: some forms are never looked
// at, and a top-level window costs the system more than all else that a start does. The form is destroyed by dispose,
// at once or, from inside one of its own messages, when the outermost of them has returned; from then on it is hidden
// and raises nothing.
class FormWindow final : public Window {
 public:
  explicit FormWindow(const FormLayout& layout);
  ~FormWindow() override;
  void dispose();

  WindowHandle handle() const override { return reinterpret_cast<WindowHandle>(realized()); }
  bool isVisible() const override;
  void setCaption(const std::string& text) override;
  void setHeight(Twips height) override;
  Size sizeInPixels() const override;
  Point position() const override;
  Point clientOrigin() const override;
  bool showsFocus() const override { return focusShown; }
  void showTopmostAt(Point topLeft) override;
  void showTopmost() override;
  void hide() override;
  void showModal() override;
  void hook(WindowProcedure procedure) override;
  void unhook() override;
  bool isHooked() const override { return hooked != nullptr; }
  std::intptr_t callPrevious(const Message& message) override;
  int popUpMenuRightAligned(std::span<const char* const> captions, Twips x, Twips y) override;
  ButtonBar& buttonBar(const std::string& name, int index) override;
  ComboBox& comboBox(const std::string& name) override;
  TextBox& textBox(const std::string& name) override;
  PictureBox& pictureBox(const std::string& name, int index) override;
  Label& label(const std::string& name) override;
  Button& button(const std::string& name, int index) override;
  Image& image(const std::string& name) override;
  ListView& listView(const std::string& name) override;
  Preview& preview(const std::string& name) override;
  FormMenu& menu() override { return menuBar; }
  Timer& timer() override { return formTimer; }

  // For the controls.
  HWND window() const { return hwnd; }
  HFONT font() const { return messageFont.get(); }
  const Scale& scale() const { return screenScale; }
  BackBuffer& backBuffer() { return buffer; }
  Tooltips& tooltips() { return *tips; }
  // Where a control lies on the form, in pixels of its client area.
  RECT place(const ControlLayout& row) const;
  // The window that a control lies in: the form's, or that of its container.
  HWND windowAround(const ControlLayout& row) const;
  // Whether the form is sized by its user, and is moved through like a dialog.
  bool isDialog() const { return frame == FormFrame::dialog; }
  // The topmost control at a point of the client area.
  const NativeControl* controlAt(POINT point) const;
  // Whether the pointer has moved since the last time: the system also tells of moves when a window came or went below
  // a pointer that rests. The point is in the window's coordinates.
  bool pointerMoved(HWND over, POINT point);
  // Told when the pointer leaves a window of the form; that counts only if it left the form altogether.
  void pointerLeft();
  void setShowsFocus(bool shows);
  // Tab, Shift+Tab and Escape; true when the key has been used up.
  bool handleNavigation(UINT message, WPARAM key, const NativeControl* from);

  // Raises an event of the form or of one of its controls; unless the form is on its way out, which answers nothing.
  template <class Event, class... Arguments>
  auto raise(const Event& event, Arguments&&... arguments) -> typename Event::result_type {
    using Result = typename Event::result_type;
    return !disposed && event ? event(std::forward<Arguments>(arguments)...) : Result();
  }

  // Runs a window procedure of the form or of a control: the module stays, the form stays, no exception leaves.
  template <class Handler>
  LRESULT dispatch(Handler handler) noexcept {
    const ModuleLock lock;
    const Use use(*this);
    try {
      return handler();
    } catch (...) {
      return 0;
    }
  }

 private:
  friend LRESULT CALLBACK formProcedure(HWND, UINT, WPARAM, LPARAM);
  friend LRESULT CALLBACK hookProcedure(HWND, UINT, WPARAM, LPARAM);

  // While one exists, the form is not deleted.
  class Use {
   public:
    explicit Use(FormWindow& used) : form(used) { ++form.uses; }
    ~Use() {
      if (--form.uses == 0 && form.disposed && !form.dying) delete &form;
    }
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;

   private:
    FormWindow& form;
  };

  // The system's window, made if there has been none yet. Error 7 when there can be none.
  HWND realized() const;
  void realize();
  void discardWindows();
  void installHook();
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);
  bool onMenu(UINT message, WPARAM wParam, LPARAM lParam);
  SIZE outerSize(DWORD style, DWORD extendedStyle) const;  // of the window as it is laid out
  RECT stretched(RECT at, const Stretch& stretch) const;
  void keepLeastSize(MINMAXINFO& limits) const;
  void placeControls();
  LRESULT runHook(UINT message, WPARAM wParam, LPARAM lParam);
  void paintWithControls();
  void drawControls(HDC target);
  LRESULT callHook(const WindowProcedure& procedure, const Message& message);
  void keepPlace(WINDOWPOS& change);
  bool awaitsFocus(const Message& message);
  void paintOutline();
  void onActivate(bool active, HWND before);
  static FormWindow* formOf(HWND window);
  void rememberFocus();
  void moveFocus(const NativeControl* from, bool backward);
  void fitRows();
  void makeControls();
  NativeControl* controlOf(HWND window) const;
  void leaveUnreachableFocus();
  void centre(HWND after);
  void setOwner(HWND owner);
  void endModal();
  template <class Interface>
  Interface& find(const std::string& name, int index);

  const FormLayout layout;
  bool isRealized = false;
  const FormFrame frame;
  const bool paintsControls;  // the form paints them with itself
  const WindowClasses classes;
  const Scale screenScale;
  SystemFormMenu menuBar;
  SystemTimer formTimer{*this};
  UniqueFont messageFont;
  BackBuffer buffer;
  std::vector<std::unique_ptr<NativeControl>> controls;
  HWND hwnd = nullptr;
  std::optional<Tooltips> tips;
  int rowsNeed = 1;  // pixels that the rows in sight were laid out for, and pixels that there are
  int rowsHave = 1;
  HWND lastFocus = nullptr;
  std::optional<POINT> lastPointer;  // on the screen
  ULONGLONG shownAt = 0;             // in the system's milliseconds
  bool focusShown = false;
  bool clickStarted = false;

  std::shared_ptr<const WindowProcedure> hooked;
  WNDPROC behindHook = nullptr;
  bool inChain = false;             // of the window's procedures, hooked or not
  std::optional<Message> heldBack;  // that the focus is lost: see awaitsFocus

  bool modal = false;
  std::vector<HWND> disabledForModal;
  bool menuOpen = false;

  int uses = 0;
  bool disposed = false;
  bool dying = false;
};

LRESULT CALLBACK formProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace nerida

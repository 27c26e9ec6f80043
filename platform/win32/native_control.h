#pragma once

#include <windows.h>

#include <string>

#include "platform/control.h"
#include "platform/form_layout.h"

namespace nerida {

class FormWindow;

// What the controls of a form have in common: a child window whose messages come here, be it one of our classes or
// one of the system's that we stand in front of. The form owns the object, and makes and destroys the window. What a
// control keeps for itself, as its events or the buttons of a bar, it can be told before it has one.
class NativeControl {
 public:
  NativeControl(FormWindow& owner, const ControlLayout& row);
  virtual ~NativeControl() = default;
  NativeControl(const NativeControl&) = delete;
  NativeControl& operator=(const NativeControl&) = delete;

  virtual void create() = 0;                         // the window
  HWND window() const;                               // for which all of the form's are made if there are none yet
  bool exists() const { return handle != nullptr; }  // whether there is a window
  FormWindow& form() const { return parent; }
  const ControlLayout& layout() const { return place; }
  // What assistive tools call it: the tooltip; else the text of a control that does not show it; else the name.
  std::wstring accessibleName() const;

  void show(bool visible);
  bool isShown() const { return shown; }
  RECT area() const;  // pixels of the form's client area

  virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);
  // From the control's own window, through the form.
  virtual void onCommand(WORD notification);
  virtual LRESULT onNotify(const NMHDR& notification);
  // Whether the keyboard can come here now: it is shown, and its middle is neither folded away nor covered.
  virtual bool takesFocus() const { return false; }
  virtual bool isTabStop() const { return takesFocus(); }
  bool isReachable(POINT point) const;  // in the control's own coordinates

  // Draws the control, with its upper left corner at the context's origin, for a form that paints its controls.
  virtual void draw(HDC) {}

  virtual void onHidden() {}  // with its form or alone
  virtual void reposition();  // its form has another size

  void detach();  // the window is gone

 protected:
  // A window of one of our classes (it is given its messages from the first one on), or of the system's.
  void createOwn(const wchar_t* windowClass, DWORD style);
  void createStandard(const wchar_t* windowClass, const wchar_t* text, DWORD style, DWORD extendedStyle,
                      int height = 0);
  LRESULT passOn(UINT message, WPARAM wParam, LPARAM lParam);
  SIZE size() const;

 private:
  friend LRESULT CALLBACK controlProcedure(HWND, UINT, WPARAM, LPARAM);

  HWND createWindow(const wchar_t* windowClass, const wchar_t* text, DWORD style, DWORD extendedStyle, int height,
                    void* parameter);
  void relayToTooltips(UINT message, WPARAM wParam, LPARAM lParam);

  FormWindow& parent;
  const ControlLayout& place;
  HWND handle = nullptr;
  WNDPROC previous = nullptr;
  bool shown = true;
};

LRESULT CALLBACK controlProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// The common members of the control interfaces, on top of a native control.
template <class Interface>
class ControlOf : public Interface, public NativeControl {
 public:
  using NativeControl::NativeControl;
  void setVisible(bool visible) override { show(visible); }
  bool isVisible() const override { return isShown(); }
  Bounds bounds() const override { return layout().bounds; }
};

}  // namespace nerida

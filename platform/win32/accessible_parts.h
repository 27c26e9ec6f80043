#pragma once

#include <string>

#include "platform/win32/accessible.h"

namespace nerida {

class NativeControl;

// What a control that draws its parts itself tells assistive tools of them. A part is named by its index.
class ControlParts {
 public:
  virtual ~ControlParts() = default;
  virtual std::wstring wholeName() const = 0;
  virtual LONG wholeRole() const = 0;
  virtual DWORD wholeStateFlags() const = 0;
  virtual int partCount() const = 0;
  // A control whose only part is a button is that button itself, without children.
  virtual bool isOneButton() const { return false; }
  virtual std::wstring partName(int part) const = 0;
  virtual DWORD partStateFlags(int part) const = 0;
  virtual RECT partArea(int part) const = 0;  // in the control's window
  virtual int partAt(POINT point) const = 0;  // -1 for none
  virtual int focusedPart() const = 0;        // -1 for none
  virtual bool canPressPart(int part) const = 0;
  virtual bool focusPart(int part) = 0;  // false where a tool cannot move the focus
  virtual void doPart(int part) = 0;
};

// Such a control as assistive tools see it: its children 1, 2, … are its parts, push buttons all of them. It may
// outlive the control, and then answers that it is not connected any more.
class PartsAccessible final : public AccessibleBase {
 public:
  PartsAccessible(NativeControl& shown, ControlParts& drawn) : control(&shown), parts(drawn) {}

  LRESULT answer(WPARAM wParam);  // to WM_GETOBJECT
  void disconnect();              // the control goes, and its reference with it

  STDMETHODIMP get_accParent(IDispatch** parent) override;
  STDMETHODIMP get_accChildCount(LONG* count) override;
  STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override;
  STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
  STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override;
  STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) override;
  STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
  STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
  STDMETHODIMP get_accHelp(VARIANT child, BSTR* text) override;
  STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override;
  STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* text) override;
  STDMETHODIMP get_accFocus(VARIANT* child) override;
  STDMETHODIMP get_accSelection(VARIANT* children) override;
  STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
  STDMETHODIMP accSelect(LONG flags, VARIANT child) override;
  STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override;
  STDMETHODIMP accNavigate(LONG direction, VARIANT start, VARIANT* end) override;
  STDMETHODIMP accHitTest(LONG left, LONG top, VARIANT* child) override;
  STDMETHODIMP accDoDefaultAction(VARIANT child) override;
  STDMETHODIMP put_accName(VARIANT child, BSTR name) override;
  STDMETHODIMP put_accValue(VARIANT child, BSTR value) override;

 private:
  int childCount() const { return parts.isOneButton() ? 0 : parts.partCount(); }
  // The child identifier of a part, -1 being none.
  LONG childOf(int part) const { return parts.isOneButton() ? CHILDID_SELF : part + 1; }
  // Whether a child identifier means the control itself (-1) or one of its parts (their index).
  HRESULT resolve(const VARIANT& child, int& index) const;

  NativeControl* control;
  ControlParts& parts;  // gone when the control is
};

}  // namespace nerida

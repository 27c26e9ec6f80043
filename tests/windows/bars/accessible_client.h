#pragma once

#include <windows.h>

#include <oleacc.h>

#include <string>

#include "platform/win32/text.h"

namespace nerida {

// A window's accessible object as a tool gets it, with its children by number.
class Accessible {
 public:
  explicit Accessible(HWND window) {
    AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                               reinterpret_cast<void**>(&object));
  }
  ~Accessible() {
    if (object != nullptr) object->Release();
  }
  Accessible(const Accessible&) = delete;
  Accessible& operator=(const Accessible&) = delete;

  IAccessible* operator->() const { return object; }
  explicit operator bool() const { return object != nullptr; }

  static VARIANT child(LONG number) {
    VARIANT value = {};
    value.vt = VT_I4;
    value.lVal = number;
    return value;
  }
  std::string name(LONG number) const {
    BSTR text = nullptr;
    object->get_accName(child(number), &text);
    return take(text);
  }
  std::string action(LONG number) const {
    BSTR text = nullptr;
    object->get_accDefaultAction(child(number), &text);
    return take(text);
  }
  LONG role(LONG number) const {
    VARIANT value = {};
    object->get_accRole(child(number), &value);
    return value.lVal;
  }
  LONG state(LONG number) const {
    VARIANT value = {};
    object->get_accState(child(number), &value);
    return value.lVal;
  }
  HRESULT press(LONG number) const { return object->accDoDefaultAction(child(number)); }

 private:
  static std::string take(BSTR text) {
    std::string result = text == nullptr ? "(none)" : utf8({text, SysStringLen(text)});
    SysFreeString(text);
    return result;
  }

  IAccessible* object = nullptr;
};

}  // namespace nerida

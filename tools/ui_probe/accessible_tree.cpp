#include <oleacc.h>

#include <functional>
#include <string>

#include "tools/ui_probe/probe.h"

namespace probe {
namespace {

template <class T>
class Com {
 public:
  Com() = default;
  Com(const Com&) = delete;
  Com& operator=(const Com&) = delete;
  ~Com() {
    if (pointer) pointer->Release();
  }
  T* operator->() const { return pointer; }
  explicit operator bool() const { return pointer != nullptr; }
  T* pointer = nullptr;
};

VARIANT childNumber(long child) {
  VARIANT id;
  VariantInit(&id);
  id.vt = VT_I4;
  id.lVal = child;
  return id;
}

bool clientOf(HWND window, Com<IAccessible>& object) {
  return SUCCEEDED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                              reinterpret_cast<void**>(&object.pointer))) &&
         object;
}

template <class Getter>
Json text(IAccessible* object, Getter getter, long child) {
  BSTR value = nullptr;
  const HRESULT status = (object->*getter)(childNumber(child), &value);
  if (FAILED(status) || !value) return nullptr;
  Json result = utf8(value, static_cast<int>(SysStringLen(value)));
  SysFreeString(value);
  return result;
}

template <class Getter>
Json number(IAccessible* object, Getter getter, long child) {
  VARIANT value;
  VariantInit(&value);
  if (FAILED((object->*getter)(childNumber(child), &value)) || value.vt != VT_I4) return nullptr;
  return value.lVal;
}

Json element(HWND window, IAccessible* object, long child) {
  long x = 0;
  long y = 0;
  long width = 0;
  long height = 0;
  Json place = nullptr;
  if (SUCCEEDED(object->accLocation(&x, &y, &width, &height, childNumber(child)))) {
    place = {x, y, x + width, y + height};
  }
  return {{"window", reinterpret_cast<std::intptr_t>(window)},
          {"child", child},
          {"name", text(object, &IAccessible::get_accName, child)},
          {"role", number(object, &IAccessible::get_accRole, child)},
          {"state", number(object, &IAccessible::get_accState, child)},
          {"rect", place}};
}

bool isInState(IAccessible* object, long child, long state) {
  if (state == 0) return true;
  const Json bits = number(object, &IAccessible::get_accState, child);
  return bits.is_number() && (bits.get<long>() & state) != 0;
}

// The other classes' elements are windows of their own.
bool drawsItsElements(const std::string& className) {
  return className.find("Bar") != std::string::npos || className.find("Picture") != std::string::npos;
}

Json describe(HWND window, IAccessible* object, long child) {
  Json result = element(window, object, child);
  if (child == CHILDID_SELF) result["class"] = classOf(window);
  return result;
}

// Takes an element and tells whether to go on to the next one.
using Visitor = std::function<bool(HWND window, IAccessible* object, long child)>;

bool visitWindow(HWND window, const Visitor& visit) {
  Com<IAccessible> object;
  if (!clientOf(window, object)) return true;
  if (!visit(window, object.pointer, CHILDID_SELF)) return false;
  if (!drawsItsElements(classOf(window))) return true;
  long count = 0;
  object->get_accChildCount(&count);
  for (long child = 1; child <= count && child <= 200; ++child) {
    if (!visit(window, object.pointer, child)) return false;
  }
  return true;
}

BOOL CALLBACK visitVisibleWindow(HWND child, LPARAM visit) {
  return !IsWindowVisible(child) || visitWindow(child, *reinterpret_cast<const Visitor*>(visit));
}

void visitElements(HWND window, const Visitor& visit) {
  if (visitWindow(window, visit)) EnumChildWindows(window, visitVisibleWindow, reinterpret_cast<LPARAM>(&visit));
}

}  // namespace

Json accessibleElements(HWND window) {
  Json list = Json::array();
  visitElements(window, [&](HWND owner, IAccessible* object, long child) {
    list.push_back(describe(owner, object, child));
    list.back()["value"] = text(object, &IAccessible::get_accValue, child);
    list.back()["action"] = text(object, &IAccessible::get_accDefaultAction, child);
    return true;
  });
  return list;
}

Json accessibleElement(HWND root, HWND window, long child) {
  Com<IAccessible> object;
  const bool isThere = window == root || IsChild(root, window);
  if (!isThere || !IsWindowVisible(window) || !clientOf(window, object)) return nullptr;
  return describe(window, object.pointer, child);
}

// Each property is a message to the other program: what is not wanted is not asked for.
Json findElement(HWND window, long role, const std::string& name) {
  Json found = nullptr;
  visitElements(window, [&](HWND owner, IAccessible* object, long child) {
    if (role != 0 && number(object, &IAccessible::get_accRole, child) != role) return true;
    if (text(object, &IAccessible::get_accName, child) != name) return true;
    found = describe(owner, object, child);
    return false;
  });
  return found;
}

Json namesInState(HWND window, long role, long state) {
  Json names = Json::array();
  visitElements(window, [&](HWND, IAccessible* object, long child) {
    if (!isInState(object, child, state)) return true;  // most are not: it is asked first
    if (number(object, &IAccessible::get_accRole, child) == role)
      names.push_back(text(object, &IAccessible::get_accName, child));
    return true;
  });
  return names;
}

long pressElement(HWND window, long child) {
  Com<IAccessible> object;
  if (!clientOf(window, object)) return E_FAIL;
  return object->accDoDefaultAction(childNumber(child));
}

long focusElement(HWND window, long child) {
  Com<IAccessible> object;
  if (!clientOf(window, object)) return E_FAIL;
  return object->accSelect(SELFLAG_TAKEFOCUS, childNumber(child));
}

}  // namespace probe

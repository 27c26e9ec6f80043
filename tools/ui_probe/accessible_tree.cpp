#include <oleacc.h>

#include <vector>

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
          {"value", text(object, &IAccessible::get_accValue, child)},
          {"role", number(object, &IAccessible::get_accRole, child)},
          {"state", number(object, &IAccessible::get_accState, child)},
          {"action", text(object, &IAccessible::get_accDefaultAction, child)},
          {"rect", place}};
}

// The other classes' elements are windows of their own.
bool drawsItsElements(const std::wstring& className) {
  return className.find(L"Bar") != std::wstring::npos || className.find(L"Picture") != std::wstring::npos;
}

void addWindow(HWND window, Json& list) {
  Com<IAccessible> object;
  if (!clientOf(window, object)) return;
  list.push_back(element(window, object.pointer, CHILDID_SELF));
  wchar_t className[64] = L"";
  GetClassNameW(window, className, 64);
  list.back()["class"] = utf8(className);
  long count = 0;
  object->get_accChildCount(&count);
  if (!drawsItsElements(className)) return;
  for (long child = 1; child <= count && child <= 200; ++child) {
    list.push_back(element(window, object.pointer, child));
  }
}

BOOL CALLBACK addVisibleWindow(HWND child, LPARAM list) {
  if (IsWindowVisible(child)) addWindow(child, *reinterpret_cast<Json*>(list));
  return TRUE;
}

}  // namespace

Json accessibleElements(HWND window) {
  Json list = Json::array();
  addWindow(window, list);
  EnumChildWindows(window, addVisibleWindow, reinterpret_cast<LPARAM>(&list));
  return list;
}

long pressElement(HWND window, long child) {
  Com<IAccessible> object;
  if (!clientOf(window, object)) return E_FAIL;
  return object->accDoDefaultAction(childNumber(child));
}

}  // namespace probe

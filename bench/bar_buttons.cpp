#include "bench/bar_buttons.h"

#include "bench/control.h"

namespace nerida::bench {
namespace {

VARIANT number(LONG child) {
  VARIANT result = {};
  result.vt = VT_I4;
  result.lVal = child;
  return result;
}

struct Search {
  const std::wstring& name;
  BarButton found;
};

bool hasName(IAccessible& bar, LONG child, const std::wstring& wanted) {
  BSTR name = nullptr;
  if (bar.get_accName(number(child), &name) != S_OK) return false;
  const bool same = wanted == name;
  SysFreeString(name);
  return same;
}

BOOL CALLBACK lookInto(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  IAccessible* bar = nullptr;
  AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, reinterpret_cast<void**>(&bar));
  if (bar == nullptr) return TRUE;
  LONG count = 0;
  bar->get_accChildCount(&count);
  for (LONG child = 1; child <= count; ++child) {
    if (!hasName(*bar, child, search.name)) continue;
    search.found = {window, bar, child, 0};
    return FALSE;
  }
  bar->Release();
  return TRUE;
}

LPARAM placeOf(IAccessible& bar, const BarButton& button) {
  LONG left = 0, top = 0, width = 0, height = 0;
  bar.accLocation(&left, &top, &width, &height, number(button.child));
  POINT centre = {left + width / 2, top + height / 2};
  ScreenToClient(button.bar, &centre);
  return MAKELPARAM(centre.x, centre.y);
}

}  // namespace

void BarButton::press() const { accessible->accDoDefaultAction(number(child)); }

BarButton findButton(HWND form, const std::wstring& name) {
  Search search{name, {}};
  EnumChildWindows(form, lookInto, reinterpret_cast<LPARAM>(&search));
  IAccessible* const bar = search.found.accessible;
  require(bar != nullptr, "the button is found by its name");
  if (bar != nullptr) search.found.place = placeOf(*bar, search.found);
  return search.found;
}

}  // namespace nerida::bench

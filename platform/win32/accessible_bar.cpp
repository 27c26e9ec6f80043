#include "platform/win32/accessible_bar.h"

#include <string>

#include "platform/win32/button_bar.h"
#include "platform/win32/form_window.h"

namespace nerida {
namespace {

constexpr int wholeBar = -1;

VARIANT number(LONG value) {
  VARIANT result = {};
  result.vt = VT_I4;
  result.lVal = value;
  return result;
}

// Gives the text that a function makes; its failure does not leave the method.
template <class Text>
HRESULT give(BSTR* target, Text makeText) noexcept {
  try {
    const std::wstring text = makeText();
    *target = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  } catch (...) {
    *target = nullptr;
  }
  return *target != nullptr ? S_OK : E_OUTOFMEMORY;
}

// "There is none" of a text.
HRESULT giveNothing(BSTR* target) {
  if (target == nullptr) return E_POINTER;
  *target = nullptr;
  return S_FALSE;
}

}  // namespace

LRESULT BarAccessible::answer(WPARAM wParam) {
  return LresultFromObject(IID_IAccessible, wParam, static_cast<IAccessible*>(this));
}

void BarAccessible::disconnect() {
  bar = nullptr;
  CoDisconnectObject(static_cast<IAccessible*>(this), 0);
  Release();
}

HRESULT BarAccessible::resolve(const VARIANT& child, int& index) const {
  if (bar == nullptr) return CO_E_OBJNOTCONNECTED;
  if (child.vt != VT_I4 || child.lVal < CHILDID_SELF || child.lVal > bar->buttonCount()) return E_INVALIDARG;
  index = static_cast<int>(child.lVal) - 1;
  return S_OK;
}

STDMETHODIMP BarAccessible::get_accParent(IDispatch** parent) {
  if (parent == nullptr) return E_POINTER;
  *parent = nullptr;
  if (bar == nullptr) return CO_E_OBJNOTCONNECTED;
  return AccessibleObjectFromWindow(bar->window(), static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                    reinterpret_cast<void**>(parent));
}

STDMETHODIMP BarAccessible::get_accChildCount(LONG* count) {
  if (count == nullptr) return E_POINTER;
  if (bar == nullptr) return CO_E_OBJNOTCONNECTED;
  *count = bar->buttonCount();
  return S_OK;
}

STDMETHODIMP BarAccessible::get_accChild(VARIANT child, IDispatch** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  int index = wholeBar;
  const HRESULT status = resolve(child, index);
  return FAILED(status) ? status : S_FALSE;  // buttons are no objects of their own
}

STDMETHODIMP BarAccessible::get_accName(VARIANT child, BSTR* name) {
  if (name == nullptr) return E_POINTER;
  *name = nullptr;
  int index = wholeBar;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  return give(name, [&] { return index == wholeBar ? bar->accessibleName() : bar->buttonName(index); });
}

STDMETHODIMP BarAccessible::get_accValue(VARIANT, BSTR* value) { return giveNothing(value); }

STDMETHODIMP BarAccessible::get_accDescription(VARIANT, BSTR* text) { return giveNothing(text); }

STDMETHODIMP BarAccessible::get_accRole(VARIANT child, VARIANT* role) {
  if (role == nullptr) return E_POINTER;
  VariantInit(role);
  int index = wholeBar;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  *role = number(index == wholeBar ? ROLE_SYSTEM_TOOLBAR : ROLE_SYSTEM_PUSHBUTTON);
  return S_OK;
}

STDMETHODIMP BarAccessible::get_accState(VARIANT child, VARIANT* state) {
  if (state == nullptr) return E_POINTER;
  VariantInit(state);
  int index = wholeBar;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  *state = number(static_cast<LONG>(index == wholeBar ? bar->stateFlags() : bar->buttonStateFlags(index)));
  return S_OK;
}

STDMETHODIMP BarAccessible::get_accHelp(VARIANT, BSTR* text) { return giveNothing(text); }

STDMETHODIMP BarAccessible::get_accHelpTopic(BSTR* file, VARIANT, LONG* topic) {
  if (topic != nullptr) *topic = 0;
  return giveNothing(file);
}

STDMETHODIMP BarAccessible::get_accKeyboardShortcut(VARIANT, BSTR* text) { return giveNothing(text); }

STDMETHODIMP BarAccessible::get_accFocus(VARIANT* child) {
  if (child == nullptr) return E_POINTER;
  VariantInit(child);
  if (bar == nullptr) return CO_E_OBJNOTCONNECTED;
  if (GetFocus() != bar->window()) return S_FALSE;
  *child = number(bar->focusedButton() + 1);
  return S_OK;
}

STDMETHODIMP BarAccessible::get_accSelection(VARIANT* children) {
  if (children == nullptr) return E_POINTER;
  VariantInit(children);
  return S_FALSE;
}

STDMETHODIMP BarAccessible::get_accDefaultAction(VARIANT child, BSTR* action) {
  if (action == nullptr) return E_POINTER;
  *action = nullptr;
  int index = wholeBar;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  return index == wholeBar ? S_FALSE : give(action, [] { return L"Press"; });
}

STDMETHODIMP BarAccessible::accSelect(LONG flags, VARIANT child) {
  int index = wholeBar;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  if (flags != SELFLAG_TAKEFOCUS || index == wholeBar || !bar->canPress(index)) return E_INVALIDARG;
  bar->focusButton(index);
  SetFocus(bar->window());
  return S_OK;
}

STDMETHODIMP BarAccessible::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) {
  if (left == nullptr || top == nullptr || width == nullptr || height == nullptr) return E_POINTER;
  int index = wholeBar;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  RECT area = {};
  if (index == wholeBar) {
    GetClientRect(bar->window(), &area);
  } else {
    area = bar->button(index).area;
  }
  MapWindowPoints(bar->window(), nullptr, reinterpret_cast<POINT*>(&area), 2);
  *left = area.left;
  *top = area.top;
  *width = area.right - area.left;
  *height = area.bottom - area.top;
  return S_OK;
}

STDMETHODIMP BarAccessible::accNavigate(LONG direction, VARIANT start, VARIANT* end) {
  if (end == nullptr) return E_POINTER;
  VariantInit(end);
  int index = wholeBar;
  const HRESULT status = resolve(start, index);
  if (FAILED(status)) return status;
  const bool inside = index != wholeBar;
  LONG target = 0;
  if (direction == NAVDIR_FIRSTCHILD && !inside) target = 1;
  if (direction == NAVDIR_LASTCHILD && !inside) target = bar->buttonCount();
  if ((direction == NAVDIR_NEXT || direction == NAVDIR_RIGHT) && inside) target = index + 2;
  if ((direction == NAVDIR_PREVIOUS || direction == NAVDIR_LEFT) && inside) target = index;
  if (target < 1 || target > bar->buttonCount()) return S_FALSE;
  *end = number(target);
  return S_OK;
}

STDMETHODIMP BarAccessible::accHitTest(LONG left, LONG top, VARIANT* child) {
  if (child == nullptr) return E_POINTER;
  VariantInit(child);
  if (bar == nullptr) return CO_E_OBJNOTCONNECTED;
  POINT point = {left, top};
  ScreenToClient(bar->window(), &point);
  RECT client = {};
  GetClientRect(bar->window(), &client);
  if (!PtInRect(&client, point)) return S_FALSE;
  *child = number(bar->buttonAt(point) + 1);
  return S_OK;
}

STDMETHODIMP BarAccessible::accDoDefaultAction(VARIANT child) {
  int index = wholeBar;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  if (index == wholeBar) return DISP_E_MEMBERNOTFOUND;
  if (!bar->canPress(index)) return E_FAIL;
  // The bar may be gone before the handler has returned; its form waits for the dispatch to end.
  bar->form().dispatch([this, index] {
    bar->press(index);
    return LRESULT{0};
  });
  return S_OK;
}

STDMETHODIMP BarAccessible::put_accName(VARIANT, BSTR) { return E_NOTIMPL; }

STDMETHODIMP BarAccessible::put_accValue(VARIANT, BSTR) { return E_NOTIMPL; }

}  // namespace nerida

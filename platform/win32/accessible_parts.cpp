#include "platform/win32/accessible_parts.h"

#include "platform/win32/form_window.h"
#include "platform/win32/native_control.h"

namespace nerida {
namespace {

constexpr int wholeControl = -1;

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

LRESULT PartsAccessible::answer(WPARAM wParam) {
  return LresultFromObject(IID_IAccessible, wParam, static_cast<IAccessible*>(this));
}

void PartsAccessible::disconnect() {
  control = nullptr;
  CoDisconnectObject(static_cast<IAccessible*>(this), 0);
  Release();
}

HRESULT PartsAccessible::resolve(const VARIANT& child, int& index) const {
  if (control == nullptr) return CO_E_OBJNOTCONNECTED;
  if (child.vt != VT_I4 || child.lVal < CHILDID_SELF || child.lVal > childCount()) return E_INVALIDARG;
  index = parts.isOneButton() ? 0 : static_cast<int>(child.lVal) - 1;
  return S_OK;
}

STDMETHODIMP PartsAccessible::get_accParent(IDispatch** parent) {
  if (parent == nullptr) return E_POINTER;
  *parent = nullptr;
  if (control == nullptr) return CO_E_OBJNOTCONNECTED;
  return AccessibleObjectFromWindow(control->window(), static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                    reinterpret_cast<void**>(parent));
}

STDMETHODIMP PartsAccessible::get_accChildCount(LONG* count) {
  if (count == nullptr) return E_POINTER;
  if (control == nullptr) return CO_E_OBJNOTCONNECTED;
  *count = childCount();
  return S_OK;
}

STDMETHODIMP PartsAccessible::get_accChild(VARIANT child, IDispatch** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  int index = wholeControl;
  const HRESULT status = resolve(child, index);
  return FAILED(status) ? status : S_FALSE;  // parts are no objects of their own
}

STDMETHODIMP PartsAccessible::get_accName(VARIANT child, BSTR* name) {
  if (name == nullptr) return E_POINTER;
  *name = nullptr;
  int index = wholeControl;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  return give(name, [&] { return index == wholeControl ? parts.wholeName() : parts.partName(index); });
}

STDMETHODIMP PartsAccessible::get_accValue(VARIANT, BSTR* value) { return giveNothing(value); }

STDMETHODIMP PartsAccessible::get_accDescription(VARIANT, BSTR* text) { return giveNothing(text); }

STDMETHODIMP PartsAccessible::get_accRole(VARIANT child, VARIANT* role) {
  if (role == nullptr) return E_POINTER;
  VariantInit(role);
  int index = wholeControl;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  *role = number(index == wholeControl ? parts.wholeRole() : ROLE_SYSTEM_PUSHBUTTON);
  return S_OK;
}

STDMETHODIMP PartsAccessible::get_accState(VARIANT child, VARIANT* state) {
  if (state == nullptr) return E_POINTER;
  VariantInit(state);
  int index = wholeControl;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  *state = number(static_cast<LONG>(index == wholeControl ? parts.wholeStateFlags() : parts.partStateFlags(index)));
  return S_OK;
}

STDMETHODIMP PartsAccessible::get_accHelp(VARIANT, BSTR* text) { return giveNothing(text); }

STDMETHODIMP PartsAccessible::get_accHelpTopic(BSTR* file, VARIANT, LONG* topic) {
  if (topic != nullptr) *topic = 0;
  return giveNothing(file);
}

STDMETHODIMP PartsAccessible::get_accKeyboardShortcut(VARIANT, BSTR* text) { return giveNothing(text); }

STDMETHODIMP PartsAccessible::get_accFocus(VARIANT* child) {
  if (child == nullptr) return E_POINTER;
  VariantInit(child);
  if (control == nullptr) return CO_E_OBJNOTCONNECTED;
  if (GetFocus() != control->window()) return S_FALSE;
  *child = number(childOf(parts.focusedPart()));
  return S_OK;
}

STDMETHODIMP PartsAccessible::get_accSelection(VARIANT* children) {
  if (children == nullptr) return E_POINTER;
  VariantInit(children);
  return S_FALSE;
}

STDMETHODIMP PartsAccessible::get_accDefaultAction(VARIANT child, BSTR* action) {
  if (action == nullptr) return E_POINTER;
  *action = nullptr;
  int index = wholeControl;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  return index == wholeControl ? S_FALSE : give(action, [] { return L"Press"; });
}

STDMETHODIMP PartsAccessible::accSelect(LONG flags, VARIANT child) {
  int index = wholeControl;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  if (flags != SELFLAG_TAKEFOCUS || index == wholeControl || !parts.canPressPart(index)) return E_INVALIDARG;
  return parts.focusPart(index) ? S_OK : DISP_E_MEMBERNOTFOUND;
}

STDMETHODIMP PartsAccessible::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) {
  if (left == nullptr || top == nullptr || width == nullptr || height == nullptr) return E_POINTER;
  int index = wholeControl;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  RECT area = {};
  if (index == wholeControl) {
    GetClientRect(control->window(), &area);
  } else {
    area = parts.partArea(index);
  }
  MapWindowPoints(control->window(), nullptr, reinterpret_cast<POINT*>(&area), 2);
  *left = area.left;
  *top = area.top;
  *width = area.right - area.left;
  *height = area.bottom - area.top;
  return S_OK;
}

STDMETHODIMP PartsAccessible::accNavigate(LONG direction, VARIANT start, VARIANT* end) {
  if (end == nullptr) return E_POINTER;
  VariantInit(end);
  int index = wholeControl;
  const HRESULT status = resolve(start, index);
  if (FAILED(status)) return status;
  const bool inside = start.lVal != CHILDID_SELF;
  LONG target = 0;
  if (direction == NAVDIR_FIRSTCHILD && !inside) target = 1;
  if (direction == NAVDIR_LASTCHILD && !inside) target = childCount();
  if ((direction == NAVDIR_NEXT || direction == NAVDIR_RIGHT) && inside) target = index + 2;
  if ((direction == NAVDIR_PREVIOUS || direction == NAVDIR_LEFT) && inside) target = index;
  if (target < 1 || target > childCount()) return S_FALSE;
  *end = number(target);
  return S_OK;
}

STDMETHODIMP PartsAccessible::accHitTest(LONG left, LONG top, VARIANT* child) {
  if (child == nullptr) return E_POINTER;
  VariantInit(child);
  if (control == nullptr) return CO_E_OBJNOTCONNECTED;
  POINT point = {left, top};
  ScreenToClient(control->window(), &point);
  RECT client = {};
  GetClientRect(control->window(), &client);
  if (!PtInRect(&client, point)) return S_FALSE;
  *child = number(childOf(parts.partAt(point)));
  return S_OK;
}

STDMETHODIMP PartsAccessible::accDoDefaultAction(VARIANT child) {
  int index = wholeControl;
  const HRESULT status = resolve(child, index);
  if (FAILED(status)) return status;
  if (index == wholeControl) return DISP_E_MEMBERNOTFOUND;
  if (!parts.canPressPart(index)) return E_FAIL;
  // The control may be gone before the handler has returned; its form waits for the dispatch to end.
  control->form().dispatch([this, index] {
    parts.doPart(index);
    return LRESULT{0};
  });
  return S_OK;
}

STDMETHODIMP PartsAccessible::put_accName(VARIANT, BSTR) { return E_NOTIMPL; }

STDMETHODIMP PartsAccessible::put_accValue(VARIANT, BSTR) { return E_NOTIMPL; }

}  // namespace nerida

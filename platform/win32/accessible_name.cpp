#include "platform/win32/accessible_name.h"

#include "platform/win32/accessible.h"

namespace nerida {
namespace {

// Forwards everything but the name to the system's object.
class NamedAccessible final : public AccessibleBase {
 public:
  NamedAccessible(IAccessible* wrapped, std::wstring given, LONG flags)
      : standard(wrapped), name(std::move(given)), moreFlags(flags) {}

  STDMETHODIMP get_accName(VARIANT child, BSTR* text) override {
    if (child.vt != VT_I4 || child.lVal != CHILDID_SELF) return standard->get_accName(child, text);
    if (text == nullptr) return E_POINTER;
    *text = SysAllocStringLen(name.data(), static_cast<UINT>(name.size()));
    return *text != nullptr ? S_OK : E_OUTOFMEMORY;
  }

  STDMETHODIMP get_accParent(IDispatch** parent) override { return standard->get_accParent(parent); }
  STDMETHODIMP get_accChildCount(LONG* count) override { return standard->get_accChildCount(count); }
  STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override {
    return standard->get_accChild(child, object);
  }
  STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override { return standard->get_accValue(child, value); }
  STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) override {
    return standard->get_accDescription(child, text);
  }
  STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override { return standard->get_accRole(child, role); }
  STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override {
    const HRESULT status = standard->get_accState(child, state);
    if (SUCCEEDED(status) && state->vt == VT_I4) state->lVal |= moreFlags;
    return status;
  }
  STDMETHODIMP get_accHelp(VARIANT child, BSTR* text) override { return standard->get_accHelp(child, text); }
  STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
    return standard->get_accHelpTopic(file, child, topic);
  }
  STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* text) override {
    return standard->get_accKeyboardShortcut(child, text);
  }
  STDMETHODIMP get_accFocus(VARIANT* child) override { return standard->get_accFocus(child); }
  STDMETHODIMP get_accSelection(VARIANT* children) override { return standard->get_accSelection(children); }
  STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override {
    return standard->get_accDefaultAction(child, action);
  }
  STDMETHODIMP accSelect(LONG flags, VARIANT child) override { return standard->accSelect(flags, child); }
  STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override {
    return standard->accLocation(left, top, width, height, child);
  }
  STDMETHODIMP accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
    return standard->accNavigate(direction, start, end);
  }
  STDMETHODIMP accHitTest(LONG left, LONG top, VARIANT* child) override {
    return standard->accHitTest(left, top, child);
  }
  STDMETHODIMP accDoDefaultAction(VARIANT child) override { return standard->accDoDefaultAction(child); }
  STDMETHODIMP put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
  STDMETHODIMP put_accValue(VARIANT child, BSTR value) override { return standard->put_accValue(child, value); }

 private:
  ~NamedAccessible() override { standard->Release(); }

  IAccessible* standard;  // one reference
  std::wstring name;
  LONG moreFlags;  // of its state
};

std::optional<LRESULT> answer(HWND control, const std::wstring& name, LONG flags, WPARAM wParam, LPARAM lParam) {
  if (static_cast<LONG>(lParam) != OBJID_CLIENT) return std::nullopt;
  IAccessible* standard = nullptr;
  const HRESULT made =
      CreateStdAccessibleObject(control, OBJID_CLIENT, IID_IAccessible, reinterpret_cast<void**>(&standard));
  if (FAILED(made) || standard == nullptr) return std::nullopt;
  auto* named = new NamedAccessible(standard, name, flags);
  const LRESULT given = LresultFromObject(IID_IAccessible, wParam, static_cast<IAccessible*>(named));
  named->Release();
  return given;
}

}  // namespace

std::optional<LRESULT> answerWithName(HWND control, const std::wstring& name, WPARAM wParam, LPARAM lParam) {
  return answer(control, name, 0, wParam, lParam);
}

std::optional<LRESULT> answerAsCaption(HWND control, WPARAM wParam, LPARAM lParam) {
  return answer(control, L"", STATE_SYSTEM_INVISIBLE, wParam, lParam);
}

}  // namespace nerida

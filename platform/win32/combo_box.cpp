#include "platform/win32/combo_box.h"

#include <algorithm>

#include "platform/error.h"
#include "platform/win32/accessible_name.h"
#include "platform/win32/form_window.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

constexpr int listHeight = 200;  // of the dropped list at 96 dpi; the list itself takes whole entries

}  // namespace

void SystemComboBox::create() {
  createStandard(L"COMBOBOX", nullptr, CBS_DROPDOWNLIST | WS_VSCROLL, 0, form().scale().design(listHeight));
  fitHeight();
}

// A combo box takes its height from its entries, not from its rectangle. The text must stay whole in any case.
void SystemComboBox::fitHeight() {
  const RECT wanted = area();
  RECT actual = {};
  GetWindowRect(window(), &actual);
  const LRESULT item = send(CB_GETITEMHEIGHT, static_cast<WPARAM>(-1));
  const LRESULT edges = actual.bottom - actual.top - item;
  const LRESULT fitting = wanted.bottom - wanted.top - edges;
  send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), std::max<LRESULT>(fitting, textHeight()));
}

// Its height is that of the box with its open list.
void SystemComboBox::reposition() {
  const RECT at = area();
  SetWindowPos(window(), nullptr, at.left, at.top, at.right - at.left, form().scale().design(listHeight),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

int SystemComboBox::textHeight() const {
  const HDC dc = form().backBuffer().context();
  const Selected font(dc, form().font());
  TEXTMETRICW metrics = {};
  GetTextMetricsW(dc, &metrics);
  return metrics.tmHeight;
}

LRESULT SystemComboBox::send(UINT message, WPARAM wParam, LPARAM lParam) const {
  return SendMessageW(window(), message, wParam, lParam);
}

void SystemComboBox::clear() {
  send(CB_RESETCONTENT);
  current = -1;
}

void SystemComboBox::addItem(const std::string& text) {
  if (send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(text).c_str())) < 0) throw Error(error::outOfMemory);
}

int SystemComboBox::count() const { return static_cast<int>(send(CB_GETCOUNT)); }

std::string SystemComboBox::item(int index) const {
  const LRESULT length = index < 0 ? CB_ERR : send(CB_GETLBTEXTLEN, static_cast<WPARAM>(index));
  if (length == CB_ERR) throw Error(error::subscriptOutOfRange);
  std::wstring text(static_cast<std::size_t>(length), L'\0');
  send(CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
  return utf8(text);
}

void SystemComboBox::select(int index) {
  if (index < -1 || index >= count()) throw Error(error::subscriptOutOfRange);
  if (index == current) return;
  current = index;
  send(CB_SETCURSEL, static_cast<WPARAM>(index));
  form().raise(click);
}

void SystemComboBox::onCommand(WORD notification) {
  if (notification == CBN_DROPDOWN) form().tooltips().hide();  // it would lie over the open list
  if (notification != CBN_SELCHANGE) return;
  const int chosen = static_cast<int>(send(CB_GETCURSEL));
  if (chosen == current) return;
  current = chosen;
  form().raise(click);
}

bool SystemComboBox::takesFocus() const {
  const SIZE extent = size();
  return isReachable({extent.cx / 2, extent.cy / 2});
}

LRESULT SystemComboBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_GETOBJECT) {
    if (const auto answer = answerWithName(window(), accessibleName(), wParam, lParam)) return *answer;
  }
  const bool isOpen = message == WM_KEYDOWN && send(CB_GETDROPPEDSTATE) != FALSE;
  if (!isOpen && form().handleNavigation(message, wParam, this)) return 0;
  return ControlOf::onMessage(message, wParam, lParam);
}

}  // namespace nerida

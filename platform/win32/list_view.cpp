#include "platform/win32/list_view.h"

#include <algorithm>
#include <utility>

#include "platform/error.h"
#include "platform/win32/accessible_name.h"
#include "platform/win32/bitmap_files.h"
#include "platform/win32/form_window.h"
#include "platform/win32/picture_bitmap.h"
#include "platform/win32/text.h"

namespace nerida {
namespace {

// To ourselves, when what runs now has ended.
constexpr UINT tellCountMessage = WM_APP;
constexpr UINT clickMessage = WM_APP + 1;

constexpr std::uint32_t barelyVisible = 0x01000000;

}  // namespace

void SystemListView::create() {
  constexpr DWORD style =
      LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS;
  createStandard(WC_LISTVIEWW, accessibleName().c_str(), style, WS_EX_CLIENTEDGE);
  send(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP, LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP);
  LVCOLUMNW column = {};
  column.mask = LVCF_WIDTH;
  column.cx = 1;
  send(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  fitColumn();
}

LRESULT SystemListView::send(UINT message, WPARAM wParam, LPARAM lParam) const {
  return SendMessageW(window(), message, wParam, lParam);
}

void SystemListView::fitColumn() {
  RECT client = {};
  GetClientRect(window(), &client);
  if (std::exchange(columnWidth, client.right) != client.right) send(LVM_SETCOLUMNWIDTH, 0, client.right);
}

void SystemListView::reposition() {
  ControlOf::reposition();
  fitColumn();
}

void SystemListView::setSmallIcons(const std::string& folder, const std::string& file,
                                   std::span<const char* const> specs) {
  const int percent = form().scale().percent();
  const int width = standardPictureWidth * percent / 100;
  const int height = standardPictureHeight * percent / 100;
  icons.reset(ImageList_Create(width, height, ILC_COLOR32, static_cast<int>(specs.size()) + 1, 0));
  const auto add = [&](Picture picture) {
    picture.width = width;
    picture.height = height;
    picture.pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    // A picture in which nothing is opaque would be taken for one without transparency, and all of it be black.
    picture.pixels.back() |= barelyVisible;
    ImageList_Add(icons.get(), bitmapOf(picture).get(), nullptr);
  };
  add({});  // of items without an icon, whose texts are to begin where the others' do
  const auto resources = openBitmapFile(folder, file);
  for (const char* spec : specs) add(resources->picture(parseBitmapSpec(spec), percent).value_or(Picture{}));
  send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(icons.get()));
}

void SystemListView::unselect(UINT which) {
  const LRESULT index = send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), which);
  if (index < 0) return;
  LVITEMW none = {};
  none.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  send(LVM_SETITEMSTATE, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&none));
}

void SystemListView::clear() {
  // One by one: asked to unselect everything, the system's list goes through all that it has.
  selecting = true;
  unselect(LVNI_SELECTED);
  unselect(LVNI_FOCUSED);
  selecting = false;
  items.clear();
  clicked = -1;
  tellCountLater();
}

void SystemListView::add(ListItem item) {
  items.push_back(std::move(item));
  tellCountLater();
}

// The system's list takes its time for every change of its count, most of all when its scroll bar comes or goes: it is
// told once what has come of clearing and filling.
void SystemListView::tellCountLater() {
  if (std::exchange(countIsDue, true)) return;
  PostMessageW(window(), tellCountMessage, 0, 0);
}

void SystemListView::tellCount() {
  countIsDue = false;
  if (std::exchange(told, count()) == count() && count() == 0) return;
  send(LVM_SETITEMCOUNT, items.size());
  fitColumn();  // beside a scroll bar, if there is one now
}

void SystemListView::setTag(int index, const std::string& tag) {
  if (index < 0 || index >= count()) throw Error(error::subscriptOutOfRange);
  items[static_cast<std::size_t>(index)].tag = tag;
}

ListItem SystemListView::item(int index) const {
  if (index < 0 || index >= count()) throw Error(error::subscriptOutOfRange);
  return items[static_cast<std::size_t>(index)];
}

int SystemListView::selected() const {
  return static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void SystemListView::select(int index) {
  if (index < 0 || index >= count()) throw Error(error::subscriptOutOfRange);
  tellCount();
  selecting = true;
  LVITEMW chosen = {};
  chosen.state = chosen.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  send(LVM_SETITEMSTATE, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&chosen));
  selecting = false;
  send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(index), FALSE);
  UpdateWindow(window());  // people see it while the program is still busy with what was selected
}

void SystemListView::refresh() {
  tellCount();
  InvalidateRect(window(), nullptr, TRUE);
  UpdateWindow(window());
}

bool SystemListView::takesFocus() const {
  const SIZE extent = size();
  return isReachable({extent.cx / 2, extent.cy / 2});
}

void SystemListView::describe(LVITEMW& shown) const {
  // One that has gone since may still be asked for.
  const ListItem described = shown.iItem >= 0 && shown.iItem < count() ? item(shown.iItem) : ListItem{};
  if ((shown.mask & LVIF_TEXT) != 0 && shown.cchTextMax > 0) {
    lstrcpynW(shown.pszText, wide(described.text).c_str(), shown.cchTextMax);
  }
  if ((shown.mask & LVIF_IMAGE) != 0) shown.iImage = described.smallIcon;
}

// The item that begins with what the user types, from a place on; -1 for none. Only we know the texts, and the system
// takes a bare 0 for the first item.
int SystemListView::find(const NMLVFINDITEMW& asked) const {
  if ((asked.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || asked.lvfi.psz == nullptr) return -1;
  const int length = lstrlenW(asked.lvfi.psz);
  for (int step = 0; step < count(); ++step) {
    const int index = (std::max(asked.iStart, 0) + step) % count();
    const std::wstring text = wide(items[static_cast<std::size_t>(index)].text);
    const int compared = std::min(length, static_cast<int>(text.size()));
    if (CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, text.c_str(), compared, asked.lvfi.psz, length) ==
        CSTR_EQUAL) {
      return index;
    }
  }
  return -1;
}

// A press is a click when the button has come up again; what the program does with it must not run inside of it.
LRESULT SystemListView::onNotify(const NMHDR& notification) {
  switch (notification.code) {
    case LVN_GETDISPINFOW: {
      // The system gives its notifications as what we may not change, but waits for this one to be filled in.
      auto& asked = const_cast<NMLVDISPINFOW&>(reinterpret_cast<const NMLVDISPINFOW&>(notification));
      describe(asked.item);
      break;
    }
    case LVN_ODFINDITEMW:
      return find(reinterpret_cast<const NMLVFINDITEMW&>(notification));
    case LVN_ITEMCHANGED: {
      const auto& change = reinterpret_cast<const NMLISTVIEW&>(notification);
      const bool isSelected = (change.uNewState & LVIS_SELECTED) != 0 && (change.uOldState & LVIS_SELECTED) == 0;
      if (selecting || !isSelected || change.iItem < 0) break;
      mouseSelected = mouseIsDown;
      if (!mouseIsDown) clickLater(change.iItem);
      break;
    }
    case NM_CLICK: {
      const auto& click = reinterpret_cast<const NMITEMACTIVATE&>(notification);
      mouseSelected = false;
      if (click.iItem >= 0) clickLater(click.iItem);
      break;
    }
    default:
      break;
  }
  return 0;
}

void SystemListView::clickLater(int index) {
  if (std::exchange(clicked, index) < 0) PostMessageW(window(), clickMessage, 0, 0);
}

LRESULT SystemListView::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETOBJECT:
      if (const auto answer = answerWithName(window(), accessibleName(), wParam, lParam)) return *answer;
      break;
    case tellCountMessage:
      if (countIsDue) tellCount();
      return 0;
    case clickMessage:
      if (const int index = std::exchange(clicked, -1); index >= 0 && index < count()) form().raise(itemClick, index);
      return 0;
    case WM_LBUTTONDOWN: {
      mouseIsDown = true;
      const LRESULT result = ControlOf::onMessage(message, wParam, lParam);
      mouseIsDown = false;
      return result;
    }
    case WM_LBUTTONUP: {
      const LRESULT result = ControlOf::onMessage(message, wParam, lParam);
      if (std::exchange(mouseSelected, false)) clickLater(selected());
      return result;
    }
    default:
      if (form().handleNavigation(message, wParam, this)) return 0;
      break;
  }
  return ControlOf::onMessage(message, wParam, lParam);
}

}  // namespace nerida

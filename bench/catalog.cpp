// The catalog: how soon very many hits are in its list, and how soon the picture of a hit is there.
#include "bench/control.h"

#include <commctrl.h>

#include <cstdio>

#include "bench/bar_buttons.h"
#include "bench/measurements.h"
#include "bench/stopwatch.h"

namespace nerida::bench {
namespace {

struct Wanted {
  const wchar_t* className;
  HWND found = nullptr;
};

BOOL CALLBACK takeIfWanted(HWND window, LPARAM parameter) {
  auto& wanted = *reinterpret_cast<Wanted*>(parameter);
  wchar_t name[64] = {};
  GetClassNameW(window, name, 64);
  if (lstrcmpiW(name, wanted.className) != 0) return TRUE;
  wanted.found = window;
  return FALSE;
}

/// The first window of that class below a form.
HWND partOf(HWND form, const wchar_t* className) {
  Wanted wanted{className};
  EnumChildWindows(form, takeIfWanted, reinterpret_cast<LPARAM>(&wanted));
  require(wanted.found != nullptr, "the catalog has all of its parts");
  return wanted.found;
}

/// Notices when a list is painted for the first time with items in it.
class FirstPaint {
 public:
  explicit FirstPaint(HWND watched) : list(watched) {
    SetWindowSubclass(list, noticed, 1, reinterpret_cast<DWORD_PTR>(this));
  }
  ~FirstPaint() { RemoveWindowSubclass(list, noticed, 1); }
  FirstPaint(const FirstPaint&) = delete;
  FirstPaint& operator=(const FirstPaint&) = delete;

  double moment() const {
    require(painted > 0, "the list has been painted");
    return painted;
  }

 private:
  static LRESULT CALLBACK noticed(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR self) {
    const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
    auto& paint = *reinterpret_cast<FirstPaint*>(self);
    if (message == WM_PAINT && paint.painted == 0 && SendMessageW(window, LVM_GETITEMCOUNT, 0, 0) > 0) {
      paint.painted = now();
    }
    return result;
  }

  HWND list;
  double painted = 0;
};

struct SearchTimes {
  double list;     // from Enter in the search box to the painted list
  double picture;  // to the end of the search, with the first hit's picture
};

/// The catalog with the search box filled in.
class Catalog {
 public:
  explicit Catalog(Model& model) : control(model), form(control.showCatalog()), list(partOf(form, WC_LISTVIEWW)) {}

  void type(const wchar_t* query) const { SetWindowTextW(partOf(form, L"EDIT"), query); }

  SearchTimes search() const {
    const HWND box = partOf(form, L"EDIT");
    const FirstPaint paint(list);
    const double start = now();
    SendMessageW(box, WM_KEYDOWN, VK_RETURN, 0);
    paintNow(form);
    const double end = now();
    pumpMessages();
    return {paint.moment() - start, end - start};
  }

  int hits() const { return static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0)); }

  std::wstring textOf(int hit) const {
    wchar_t text[260] = {};
    LVITEMW item = {};
    item.pszText = text;
    item.cchTextMax = 260;
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(hit), reinterpret_cast<LPARAM>(&item));
    return text;
  }

  /// The selection of a hit, to its painted picture.
  double preview(int hit) const {
    LVITEMW chosen = {};
    chosen.state = chosen.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    const double start = now();
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(hit), reinterpret_cast<LPARAM>(&chosen));
    pumpMessages();
    paintNow(form);
    const double taken = now() - start;
    pumpMessages();
    return taken;
  }

  HWND listWindow() const { return list; }

 private:
  Control control;
  HWND form, list;
};

/// The usual way: a list that holds its items, told one after the other while it does not draw.
double fillBareList(HWND owner, const RECT& place, const std::vector<std::wstring>& texts) {
  const HWND list = CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"",
                                    WS_POPUP | WS_VISIBLE | LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_SINGLESEL, place.left,
                                    place.top, place.right - place.left, place.bottom - place.top, owner, nullptr,
                                    GetModuleHandleW(nullptr), nullptr);
  LVCOLUMNW column = {};
  column.mask = LVCF_WIDTH;
  column.cx = 200;
  SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  paintNow(list);
  const double start = now();
  SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = static_cast<int>(i);
    item.pszText = const_cast<wchar_t*>(texts[i].c_str());
    SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  }
  SendMessageW(list, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list, nullptr, TRUE);
  paintNow(list);
  const double taken = now() - start;
  DestroyWindow(list);
  return taken;
}

}  // namespace

void longLists() {
  constexpr int rounds = 7, mostHits = 32'767;
  Model model;
  const Catalog catalog(model);
  catalog.type(L"boat");
  catalog.search();
  require(catalog.hits() == mostHits, "all models are found");
  std::vector<std::wstring> texts;
  texts.reserve(mostHits);
  for (int i = 0; i < mostHits; ++i) texts.push_back(catalog.textOf(i));
  RECT place = {};
  GetWindowRect(catalog.listWindow(), &place);
  std::vector<double> lists, pictures, bare;
  for (int i = 0; i < rounds; ++i) {
    const SearchTimes times = catalog.search();
    lists.push_back(times.list);
    pictures.push_back(times.picture);
    bare.push_back(fillBareList(GetAncestor(catalog.listWindow(), GA_ROOT), place, texts));
  }
  std::printf("list.catalog %.1f\nlist.picture %.1f\nlist.bare %.1f\n", middle(lists), middle(pictures), middle(bare));
}

void hitPictures() {
  constexpr int rounds = 20, warmUp = 3;
  Model model;
  const Catalog catalog(model);
  catalog.type(L"boat");
  catalog.search();
  require(catalog.hits() >= 2, "there are hits to choose from");
  std::vector<double> taken;
  for (int i = 0; i < warmUp + rounds; ++i) {
    catalog.preview(1);
    const double picture = catalog.preview(0);
    if (i >= warmUp) taken.push_back(picture);
  }
  std::printf("picture.catalog %.1f\n", middle(taken));
}

}  // namespace nerida::bench

#include "bench/bare_toolbar.h"

#include <commctrl.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/control.h"
#include "toolbar/button_table.h"
#include "toolbar/toolbar_layout.h"

namespace nerida::bench {
namespace {

constexpr const wchar_t* frameClass = L"bare_toolbar_frame";
constexpr int pictureWidth = 23, pictureHeight = 22;
constexpr COLORREF transparent = RGB(255, 0, 255);
constexpr int twipsPerPixel = 15;

struct Bar {
  HIMAGELIST images = nullptr;
  HWND window = nullptr;
  std::vector<std::wstring> tooltips;
  ~Bar() {
    DestroyWindow(window);
    ImageList_Destroy(images);
  }
};

using Bars = std::vector<std::unique_ptr<Bar>>;

int pixels(Twips length) { return length.value / twipsPerPixel; }

// The names in the table are plain ASCII.
std::wstring wide(std::string_view text) { return {text.begin(), text.end()}; }

// One picture for each button, drawn in memory: nothing is read from a file, which is to the bare toolbar's advantage.
HIMAGELIST makeImages(int count) {
  const HIMAGELIST images = ImageList_Create(pictureWidth, pictureHeight, ILC_COLOR32 | ILC_MASK, count, 0);
  const HDC screen = GetDC(nullptr), memory = CreateCompatibleDC(screen);
  const HBITMAP strip = CreateCompatibleBitmap(screen, pictureWidth * count, pictureHeight);
  const HGDIOBJ before = SelectObject(memory, strip);
  RECT all = {0, 0, pictureWidth * count, pictureHeight};
  const HBRUSH background = CreateSolidBrush(transparent);
  FillRect(memory, &all, background);
  for (int i = 0; i < count; ++i) Ellipse(memory, i * pictureWidth + 4, 4, (i + 1) * pictureWidth - 4, 18);
  SelectObject(memory, before);
  ImageList_AddMasked(images, strip, transparent);
  DeleteObject(background);
  DeleteObject(strip);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return images;
}

HWND makeChild(HWND parent, const wchar_t* name, const wchar_t* text, DWORD style, const Bounds& at, int height) {
  const HWND child =
      CreateWindowExW(0, name, text, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | style, pixels(at.left), pixels(at.top),
                      pixels(at.width), height, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
  require(child != nullptr, "the bare toolbar has its controls");
  return child;
}

std::unique_ptr<Bar> makeBar(HWND parent, const ControlLayout& row) {
  auto bar = std::make_unique<Bar>();
  constexpr DWORD style =
      TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | TBSTYLE_LIST | CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER;
  bar->window = makeChild(parent, TOOLBARCLASSNAMEW, L"", style, row.bounds, pixels(row.bounds.height));
  SendMessageW(bar->window, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
  SendMessageW(bar->window, TB_SETBITMAPSIZE, 0, MAKELPARAM(pictureWidth, pictureHeight));
  const auto rows = buttonsOf(row.name, row.index);
  bar->images = makeImages(static_cast<int>(rows.size()));
  SendMessageW(bar->window, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(bar->images));
  std::vector<TBBUTTON> buttons;
  std::vector<std::wstring> captions;
  captions.reserve(rows.size());
  for (const ButtonRow& button : rows) {
    const int index = static_cast<int>(buttons.size());
    captions.push_back(wide(button.caption));
    bar->tooltips.push_back(wide(button.tooltip));
    const INT_PTR caption = *button.caption != '\0' ? reinterpret_cast<INT_PTR>(captions.back().c_str()) : -1;
    TBBUTTON added = {};
    added.iBitmap = index;
    added.idCommand = index;
    added.fsState = TBSTATE_ENABLED;
    added.fsStyle = BTNS_BUTTON | BTNS_AUTOSIZE;
    added.iString = caption;
    buttons.push_back(added);
  }
  SendMessageW(bar->window, TB_ADDBUTTONSW, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
  SendMessageW(bar->window, TB_AUTOSIZE, 0, 0);
  return bar;
}

void makeField(HWND parent, const ControlLayout& row) {
  constexpr int droppedHeight = 200;
  const int height = pixels(row.bounds.height);
  switch (row.kind) {
    case ControlKind::comboBox: {
      const HWND list =
          makeChild(parent, WC_COMBOBOXW, L"", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, row.bounds, droppedHeight);
      SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Basic Draw"));
      SendMessageW(list, CB_SETCURSEL, 0, 0);
      break;
    }
    case ControlKind::textBox:
      makeChild(parent, WC_EDITW, wide(row.text).c_str(), WS_BORDER | WS_TABSTOP, row.bounds, height);
      break;
    default:
      makeChild(parent, WC_STATICW, L"", SS_NOTIFY, row.bounds, height);
      break;
  }
}

void giveTooltip(const Bars& bars, NMTTDISPINFOW& wanted) {
  for (const auto& bar : bars) {
    if (reinterpret_cast<HWND>(SendMessageW(bar->window, TB_GETTOOLTIPS, 0, 0)) != wanted.hdr.hwndFrom) continue;
    wanted.lpszText = bar->tooltips.at(wanted.hdr.idFrom).data();
  }
}

LRESULT CALLBACK frameProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
  }
  auto* bars = reinterpret_cast<Bars*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (message == WM_NOTIFY && bars != nullptr) {
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (header->code == TTN_GETDISPINFOW) giveTooltip(*bars, *reinterpret_cast<NMTTDISPINFOW*>(lParam));
  }
  if (message == WM_DESTROY) {
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    delete bars;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

void BareToolbar::prepare() {
  INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_BAR_CLASSES};
  InitCommonControlsEx(&classes);
  WNDCLASSEXW description = {};
  description.cbSize = sizeof description;
  description.lpfnWndProc = frameProcedure;
  description.hInstance = GetModuleHandleW(nullptr);
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
  description.lpszClassName = frameClass;
  require(RegisterClassExW(&description) != 0, "the bare toolbar has its window class");
}

BareToolbar::BareToolbar() {
  constexpr DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU, extended = WS_EX_TOOLWINDOW;
  RECT outer = {0, 0, pixels(toolbarLayout.width), 0};
  AdjustWindowRectEx(&outer, style, FALSE, extended);
  auto bars = std::make_unique<Bars>();
  frame =
      CreateWindowExW(extended, frameClass, L"Zephra Toolbar", style | WS_CLIPCHILDREN, 0, 0, outer.right - outer.left,
                      pixels(toolbarLayout.height), nullptr, nullptr, GetModuleHandleW(nullptr), bars.get());
  require(frame != nullptr, "the bare toolbar has its window");
  for (const ControlLayout& row : toolbarLayout.controls) {
    if (row.kind == ControlKind::buttonBar) {
      bars->push_back(makeBar(frame, row));
    } else {
      makeField(frame, row);
    }
  }
  static_cast<void>(bars.release());  // the window keeps them
}

void BareToolbar::show() { SetWindowPos(frame, HWND_TOPMOST, 200, 200, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW); }

}  // namespace nerida::bench

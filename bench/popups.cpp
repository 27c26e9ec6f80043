// What hangs below the toolbar's buttons: how soon it is there, what a choice costs, and whether all is given back.
#include <cstdio>

#include "bench/bar_buttons.h"
#include "bench/control.h"
#include "bench/measurements.h"
#include "bench/resources.h"
#include "bench/stopwatch.h"

namespace nerida::bench {
namespace {

constexpr const wchar_t* paletteButton = L"Background Options";

// In the order of the toolbar.
constexpr const wchar_t* popupButtons[] = {L"Line Thickness",     L"Line Color", L"Fill Color",
                                           L"Background Options", L"Lighting",   L"Animation Playback"};

// It has surfaces and lines, so that no button is missing.
constexpr const char* styleWithAll = "Ink Outline";

// A popup takes the activation when it shows.
HWND openPopup(const BarButton& button, HWND toolbar) {
  button.release();
  const HWND popup = GetActiveWindow();
  require(popup != nullptr && popup != toolbar && IsWindowVisible(popup), "the press opens the popup");
  return popup;
}

void closeByKey(HWND popup) {
  SendMessageW(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 0);
  require(!IsWindowVisible(popup), "Escape closes the popup");
}

double timePalette(const BarButton& button, HWND toolbar) {
  button.hover();
  button.hold();
  paintNow(toolbar);
  const double start = now();
  const HWND palette = openPopup(button, toolbar);
  paintNow(palette);
  const double taken = now() - start;
  closeByKey(palette);
  pumpMessages();
  return taken;
}

// The same place and size, the same kind of window, and nothing in it.
class EmptyWindow {
 public:
  explicit EmptyWindow(const RECT& place) : place(place) {
    WNDCLASSEXW description = {};
    description.cbSize = sizeof description;
    description.lpfnWndProc = DefWindowProcW;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    description.lpszClassName = L"bare_popup";
    RegisterClassExW(&description);
    window = CreateWindowExW(WS_EX_TOOLWINDOW, description.lpszClassName, L"", WS_POPUP | WS_DLGFRAME, 0, 0,
                             place.right - place.left, place.bottom - place.top, nullptr, nullptr,
                             description.hInstance, nullptr);
    require(window != nullptr, "there is an empty window");
  }
  ~EmptyWindow() { DestroyWindow(window); }
  EmptyWindow(const EmptyWindow&) = delete;
  EmptyWindow& operator=(const EmptyWindow&) = delete;

  double timeShowing() const {
    const double start = now();
    SetWindowPos(window, HWND_TOPMOST, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW);
    paintNow(window);
    const double taken = now() - start;
    ShowWindow(window, SW_HIDE);
    return taken;
  }

 private:
  RECT place;
  HWND window = nullptr;
};

RECT placeOfPalette(const BarButton& button, HWND toolbar) {
  button.hold();
  const HWND palette = openPopup(button, toolbar);
  RECT place = {};
  GetWindowRect(palette, &place);
  closeByKey(palette);
  return place;
}

// From the press on a colour to the inside of the model's member.
double timeChoice(Model& model, HWND palette, const BarButton& cell) {
  double entered = 0;
  model.moved = [&] { entered = now(); };
  cell.hover();
  const double start = now();
  cell.hold();
  model.moved = nullptr;
  require(entered > 0, "the choice reaches the model");
  require(!IsWindowVisible(palette), "the choice closes the palette");
  return entered - start;
}

// Without any palette: the name is looked up, and the member is set.
double timeBareChoice(Model& model) {
  double entered = 0;
  model.moved = [&] { entered = now(); };
  VARIANTARG color = {};
  color.vt = VT_I4;
  color.lVal = RGB(255, 0, 0);
  wchar_t text[] = L"BackgroundColor";
  LPOLESTR name = text;
  DISPID member = DISPID_UNKNOWN, put = DISPID_PROPERTYPUT;
  DISPPARAMS parameters = {&color, &put, 1, 1};
  const double start = now();
  model.automation()->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &member);
  model.automation()->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &parameters, nullptr, nullptr,
                             nullptr);
  model.moved = nullptr;
  require(entered > 0, "the model is told of its colour");
  return entered - start;
}

void openAndClose(const BarButton& button, HWND toolbar) {
  button.hover();
  button.hold();
  const HWND popup = openPopup(button, toolbar);
  paintNow(popup);
  closeByKey(popup);
  pumpMessages();
}

}  // namespace

void paletteOpenings() {
  constexpr int rounds = 200, warmUp = 20;
  Model model;
  const Control control(model);
  const BarButton button = findButton(control.window(), paletteButton);
  SetForegroundWindow(control.window());
  const EmptyWindow empty(placeOfPalette(button, control.window()));
  std::vector<double> ours, bare;
  for (int i = 0; i < warmUp + rounds; ++i) {
    const double full = timePalette(button, control.window());
    const double none = empty.timeShowing();
    SetForegroundWindow(control.window());
    pumpMessages();
    if (i < warmUp) continue;
    ours.push_back(full);
    bare.push_back(none);
  }
  std::printf("palette.shown %.1f\npalette.bare %.1f\n", middle(ours), middle(bare));
}

void colorChoices() {
  constexpr int rounds = 300, warmUp = 20;
  Model model;
  const Control control(model);
  const BarButton button = findButton(control.window(), paletteButton);
  SetForegroundWindow(control.window());
  button.hold();
  const HWND palette = openPopup(button, control.window());
  const BarButton red = findButton(palette, L"Red");
  closeByKey(palette);
  std::vector<double> chosen, bare;
  for (int i = 0; i < warmUp + rounds; ++i) {
    button.hold();
    paintNow(openPopup(button, control.window()));
    const double full = timeChoice(model, palette, red);
    pumpMessages();
    const double direct = timeBareChoice(model);
    if (i < warmUp) continue;
    chosen.push_back(full);
    bare.push_back(direct);
  }
  std::printf("choice.palette %.3f\nchoice.bare %.3f\n", middle(chosen), middle(bare));
}

void popupCycles(const std::filesystem::path& animatedModel, int cycles) {
  constexpr int warmUp = 50;
  Model model;
  model.open(animatedModel);
  require(model.setLookStyle(styleWithAll), "the model has the style");
  const Control control(model);
  SetForegroundWindow(control.window());
  std::vector<BarButton> buttons;
  for (const wchar_t* name : popupButtons) buttons.push_back(findButton(control.window(), name));
  const auto cycle = [&](int times) {
    for (int i = 0; i < times; ++i) {
      for (const BarButton& button : buttons) openAndClose(button, control.window());
    }
  };
  cycle(warmUp);
  const Resources before = held();
  cycle(cycles);
  print("popups", held() - before);
  std::printf("popups.cycles %d\n", cycles);
}

}  // namespace nerida::bench

#include "bench/control.h"

#include <cstdio>
#include <cstdlib>

namespace nerida::bench {

Control::Control(Model& model) {
  require(SUCCEEDED(CoCreateInstance(CLSID_NeridaWindow, nullptr, CLSCTX_INPROC_SERVER, IID__NeridaWindow,
                                     reinterpret_cast<void**>(&control))),
          "the registered control can be created");
  IDispatch* bound = model.automation();
  LONG window = 0, result = -1;
  require(SUCCEEDED(control->ToolbarInit(&bound, &window, &result)) && result == 0, "the control takes the model");
  show();
}

Control::~Control() {
  LONG ignored = 0;
  control->ToolbarDispose(&ignored);
  control->Release();
}

void Control::show() {
  SHORT x = 200, y = 200;
  LONG handle = -1;
  require(SUCCEEDED(control->ToolbarShow(&x, &y, &handle)) && handle > 0, "the toolbar shows");
  toolbar = reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
}

void Control::hide() {
  LONG result = -1;
  require(SUCCEEDED(control->ToolbarHide(&result)) && result == 0, "the toolbar hides");
}

HWND Control::showCatalog() const {
  LONG handle = -1;
  require(SUCCEEDED(control->ShowCatalog(&handle)) && handle > 0, "the catalog shows");
  const HWND form = reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
  pumpMessages();
  paintNow(form);
  return form;
}

void paintNow(HWND window) {
  require(IsWindowVisible(window), "the window is on the screen");
  RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ERASENOW | RDW_ALLCHILDREN);
  GdiFlush();
  require(!GetUpdateRect(window, nullptr, FALSE), "the window is painted");
}

void require(bool happened, const char* what) {
  if (happened) return;
  std::fprintf(stderr, "toolbar_bench: not so: %s\n", what);
  std::exit(1);
}

void pumpMessages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace nerida::bench

#include "host/app/document_window.h"

#include <windows.h>
// Both build on the one above.
#include <commdlg.h>
#include <windowsx.h>

#include <algorithm>

#include "host/app/resource.h"

namespace nerida::host {
namespace {

constexpr UINT messageSizeChanged = WM_APP + 3;  // posted: windows must not be shown while one is being sized
constexpr const wchar_t* className = L"ZephraDocument";
constexpr const wchar_t* productName = L"Zephra Document";

void registerWindowClass(HINSTANCE program, WNDPROC procedure) {
  WNDCLASSEXW description = {};
  description.cbSize = sizeof description;
  description.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
  description.lpfnWndProc = procedure;
  description.hInstance = program;
  description.hIcon = LoadIconW(program, MAKEINTRESOURCEW(IDI_PROGRAM));
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.lpszMenuName = MAKEINTRESOURCEW(IDM_MAIN);
  description.lpszClassName = className;
  RegisterClassExW(&description);
}

RECT usualPlace(Metrics metrics) {
  RECT work;
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  const int width = std::min(metrics.px(960), widthOf(work));
  const int height = std::min(metrics.px(800), heightOf(work));
  const LONG left = work.left + (widthOf(work) - width) / 2, top = work.top + (heightOf(work) - height) / 2;
  return {left, top, left + width, top + height};
}

std::wstring captionOf(const std::string& modelName) { return wide(modelName.empty() ? "No model" : modelName); }

}  // namespace

DocumentWindow::DocumentWindow(HINSTANCE program, Metrics metrics)
    : program(program),
      metrics(metrics),
      object(metrics),
      editing(object, metrics),
      painter(metrics),
      status(metrics) {}

void DocumentWindow::create(const Options& options) {
  if (options.log) object.logTo(*options.log);
  registerWindowClass(program, procedure);
  RECT place = usualPlace(metrics);
  if (options.place) {
    const auto& [x, y, width, height] = *options.place;
    place = {x, y, x + width, y + height};
  }
  CreateWindowExW(0, className, productName, WS_OVERLAPPEDWINDOW, place.left, place.top, widthOf(place),
                  heightOf(place), nullptr, nullptr, program, this);
  if (window == nullptr) throw std::runtime_error("The document's window could not be made.");
  object.attach(window);
  showTitle();
}

LRESULT CALLBACK DocumentWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    auto* self = static_cast<DocumentWindow*>(pointerOf<CREATESTRUCTW*>(lParam)->lpCreateParams);
    self->window = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* self = pointerOf<DocumentWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  try {
    return self->handleMessage(message, wParam, lParam);
  } catch (...) {
    return 0;
  }
}

LRESULT DocumentWindow::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT:
      paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SIZE:
      resized(wParam);
      return 0;
    case WM_TIMER:
      object.timePasses();
      return 0;
    case WM_COMMAND:
      command(LOWORD(wParam));
      return 0;
    case WM_INITMENUPOPUP:
      showMenuState(pointerOf<HMENU>(static_cast<LONG_PTR>(wParam)));
      return 0;
    case WM_KEYDOWN:
      keyDown(wParam);
      return 0;
    case WM_LBUTTONDOWN:
      buttonDown({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    case WM_LBUTTONDBLCLK:
      doubleClick({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    case messageModelLoaded:
      showTitle();
      return 0;
    case messageCatalogDone:
      edit([this] { editing.catalogClosed(window); });
      return 0;
    case messageSizeChanged:
      edit([this] { editing.follow(window); });
      return 0;
    case WM_CLOSE:
      close();
      return 0;
    case WM_DESTROY:
      object.attach(nullptr);
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

void DocumentWindow::command(WORD id) {
  switch (id) {
    case IDM_OPEN:
      chooseModel();
      break;
    case IDM_EXIT:
      PostMessageW(window, WM_CLOSE, 0, 0);
      break;
    case IDM_EDIT_OBJECT:
      activate();
      break;
    case IDM_LEAVE_OBJECT:
      deactivate();
      break;
    case IDM_PLAY:
      object.togglePlaying();
      break;
    case IDM_ABOUT:
      about();
      break;
    default:
      break;
  }
}

void DocumentWindow::showMenuState(HMENU menu) const {
  const Playback& animation = object.animation();
  const auto enable = [menu](UINT id, bool on) { EnableMenuItem(menu, id, on ? MF_ENABLED : MF_GRAYED); };
  enable(IDM_EDIT_OBJECT, !editing.active());
  enable(IDM_LEAVE_OBJECT, editing.active());
  enable(IDM_PLAY, animation.frameCount() > 0);
  CheckMenuItem(menu, IDM_PLAY, animation.playing() ? MF_CHECKED : MF_UNCHECKED);
}

void DocumentWindow::keyDown(WPARAM key) {
  if (key == VK_RETURN) activate();
  if (key == VK_ESCAPE) deactivate();
  if (key == VK_SPACE) object.togglePlaying();
}

void DocumentWindow::buttonDown(POINT point) {
  const RECT frame = object.areaWithFrame();
  if (!PtInRect(&frame, point)) deactivate();
}

void DocumentWindow::doubleClick(POINT point) {
  if (PtInRect(&object.area(), point)) activate();
}

template <typename Action>
void DocumentWindow::edit(Action action) {
  try {
    action();
  } catch (const ControlError& error) {
    say(error.what(), MB_ICONWARNING);
  }
  const RECT frame = object.areaWithFrame();
  InvalidateRect(window, &frame, FALSE);
  const RECT strip = statusStrip();
  InvalidateRect(window, &strip, FALSE);
}

void DocumentWindow::activate() {
  edit([this] { editing.begin(window); });
}

void DocumentWindow::deactivate() {
  edit([this] { editing.end(); });
}

void DocumentWindow::open(const std::filesystem::path& model) {
  try {
    object.model().open(model);
  } catch (const ModelError& error) {
    const std::string file = utf8(model.filename().wstring());
    say("The model \"" + file + "\" cannot be opened.\n\n" + error.what(), MB_ICONWARNING);
    return;
  }
  edit([this] { editing.modelReplaced(window); });
}

void DocumentWindow::chooseModel() {
  wchar_t file[32'768] = L"";
  OPENFILENAMEW question = {};
  question.lStructSize = sizeof question;
  question.hwndOwner = window;
  question.lpstrFilter = L"3D models (*.twe)\0*.twe\0All files\0*.*\0";
  question.lpstrTitle = L"Open model";
  question.lpstrFile = file;
  question.nMaxFile = static_cast<DWORD>(std::size(file));
  question.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
  if (GetOpenFileNameW(&question)) open(file);
}

void DocumentWindow::showTitle() {
  const std::wstring name = wide(object.model().name());
  SetWindowTextW(window, name.empty() ? productName : (std::wstring(productName) + L" - " + name).c_str());
  InvalidateRect(window, nullptr, FALSE);
}

void DocumentWindow::about() {
  say("Zephra Document\n\nA page with a 3D object that is edited in place.\nDouble-click the object to begin.",
      MB_ICONINFORMATION);
}

void DocumentWindow::say(const std::string& text, UINT icon) const {
  MessageBoxW(window, wide(text).c_str(), productName, MB_OK | icon);
}

void DocumentWindow::close() {
  editing.close();
  DestroyWindow(window);
}

RECT DocumentWindow::desk() const {
  RECT area;
  GetClientRect(window, &area);
  area.bottom = statusStrip().top;
  return area;
}

RECT DocumentWindow::statusStrip() const { return StatusStrip::areaIn(window, metrics); }

void DocumentWindow::resized(WPARAM how) {
  object.animationChanged();
  PostMessageW(window, messageSizeChanged, 0, 0);
  if (how == SIZE_MINIMIZED) return;
  HDC dc = GetDC(window);
  layout = painter.layOut(dc, desk());
  ReleaseDC(window, dc);
  object.place(layout.object);
}

void DocumentWindow::paint() {
  PAINTSTRUCT scope;
  HDC dc = BeginPaint(window, &scope);
  object.paint(dc, editing.active());
  const RECT done = editing.active() ? object.areaWithFrame() : inflated(object.area(), 1);
  ExcludeClipRect(dc, done.left, done.top, done.right, done.bottom);
  RECT rest;
  if (GetClipBox(dc, &rest) != NULLREGION) {
    const wchar_t* hint =
        editing.active() ? L"Editing: click beside the object to leave it" : L"Double-click the object to edit it";
    status.paint(dc, statusStrip(), object.lastCall(), hint);
    painter.paint(dc, desk(), layout, captionOf(object.model().name()));
  }
  EndPaint(window, &scope);
}

}  // namespace nerida::host

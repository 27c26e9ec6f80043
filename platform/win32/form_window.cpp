#include "platform/win32/form_window.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "platform/error.h"
#include "platform/win32/button_bar.h"
#include "platform/win32/combo_box.h"
#include "platform/win32/image.h"
#include "platform/win32/label.h"
#include "platform/win32/list_view.h"
#include "platform/win32/own_dialog.h"
#include "platform/win32/picture_box.h"
#include "platform/win32/popup_menu.h"
#include "platform/win32/preview.h"
#include "platform/win32/push_button.h"
#include "platform/win32/text.h"
#include "platform/win32/text_box.h"

namespace nerida {
namespace {

struct FrameStyle {
  DWORD style;
  DWORD extended;
};

FrameStyle styleOf(FormFrame frame) {
  switch (frame) {
    case FormFrame::toolWindow:
      return {WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_TOOLWINDOW};
    case FormFrame::popup:
      return {WS_POPUP | WS_DLGFRAME, WS_EX_TOOLWINDOW};
    case FormFrame::dialog:
      return {WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MAXIMIZEBOX, 0};
    case FormFrame::borderless:
      break;
  }
  return {WS_POPUP, WS_EX_TOOLWINDOW};
}

// The system's fields paint themselves only.
bool canPaintControls(const FormLayout& layout) {
  return layout.frame == FormFrame::popup && std::ranges::none_of(layout.controls, [](const ControlLayout& row) {
           return row.kind == ControlKind::textBox || row.kind == ControlKind::comboBox;
         });
}

// Where people read from right to left a program may have all its windows mirrored. What is left and right on ours is
// so in space, of the model and of the light, and must stay there; so must their texts, which are in one language.
void keepFromLeftToRight(HWND window) {
  const LONG_PTR style = GetWindowLongPtrW(window, GWL_EXSTYLE);
  if ((style & WS_EX_LAYOUTRTL) != 0) SetWindowLongPtrW(window, GWL_EXSTYLE, style & ~LONG_PTR{WS_EX_LAYOUTRTL});
}

// In pixels at 96 dpi: the layouts' sizes are fixed, and higher letters would be cut.
constexpr int highestLetters = 12;

UniqueFont createMessageFont(const Scale& scale) {
  NONCLIENTMETRICSW metrics = {};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  LONG& height = metrics.lfMessageFont.lfHeight;
  const LONG highest = scale.design(highestLetters);
  if (std::abs(height) > highest) height = -highest;
  return UniqueFont(CreateFontIndirectW(&metrics.lfMessageFont));
}

std::unique_ptr<NativeControl> makeControl(FormWindow& form, const ControlLayout& row) {
  switch (row.kind) {
    case ControlKind::buttonBar:
      return std::make_unique<SystemButtonBar>(form, row);
    case ControlKind::comboBox:
      return std::make_unique<SystemComboBox>(form, row);
    case ControlKind::textBox:
      return std::make_unique<SystemTextBox>(form, row);
    case ControlKind::pictureBox:
      return std::make_unique<SystemPictureBox>(form, row);
    case ControlKind::button:
      return std::make_unique<SystemPushButton>(form, row);
    case ControlKind::image:
      return std::make_unique<SystemImage>(form, row);
    case ControlKind::listView:
      return std::make_unique<SystemListView>(form, row);
    case ControlKind::preview:
      return std::make_unique<SystemPreview>(form, row);
    case ControlKind::label:
      break;
  }
  return std::make_unique<SystemLabel>(form, row);
}

}  // namespace

FormWindow::FormWindow(const FormLayout& layout)
    : layout(layout),
      frame(layout.frame),
      paintsControls(canPaintControls(layout)),
      screenScale(layout.onPicture ? Scale::ofPictures() : Scale::ofScreen()),
      menuBar(layout.menu),
      messageFont(createMessageFont(screenScale)) {}

HWND FormWindow::realized() const {
  if (!isRealized) const_cast<FormWindow*>(this)->realize();  // no form is made constant
  return hwnd;
}

void FormWindow::realize() {
  const FrameStyle style = styleOf(frame);
  const SIZE outer = outerSize(style.style, style.extended);
  isRealized = true;
  const HMENU bar = menuBar.createBar();
  CreateWindowExW(style.extended, formClass, wide(layout.caption).c_str(),
                  style.style | (paintsControls ? 0U : WS_CLIPCHILDREN), 0, 0, outer.cx, outer.cy, nullptr, bar,
                  moduleInstance(), this);
  if (hwnd == nullptr && bar != nullptr) DestroyMenu(bar);
  menuBar.attach(hwnd);
  try {
    if (hwnd == nullptr) throw Error(error::outOfMemory);
    keepFromLeftToRight(hwnd);
    tips.emplace(hwnd);
    fitRows();
    if (isDialog()) centre(nullptr);
    makeControls();
    for (const auto& control : controls) control->create();
  } catch (...) {
    discardWindows();
    throw;
  }
  if (hooked) installHook();
}

// A later attempt starts from nothing.
void FormWindow::discardWindows() {
  tips.reset();
  if (hwnd != nullptr) DestroyWindow(hwnd);
  isRealized = false;
}

FormWindow::~FormWindow() {
  dying = true;
  tips.reset();
  if (hwnd != nullptr) DestroyWindow(hwnd);
}

// The height of the whole window is fixed, and the desktop's captions take more or less of it. Where they take too
// much, the rows move together, so that what is in sight for its greater part is so as a whole.
void FormWindow::fitRows() {
  RECT client = {};
  GetClientRect(hwnd, &client);
  if (frame != FormFrame::toolWindow || client.bottom <= 0) return;
  rowsHave = rowsNeed = client.bottom;
  for (const ControlLayout& row : layout.controls) {
    const RECT at = screenScale.pixels(row.bounds);
    if ((at.top + at.bottom) / 2 < client.bottom) rowsNeed = std::max<int>(rowsNeed, at.bottom);
  }
}

RECT FormWindow::place(const ControlLayout& row) const {
  RECT at = screenScale.pixels(row.bounds);
  if (isDialog()) return stretched(at, row.stretch);
  at.top = at.top * rowsHave / rowsNeed;
  at.bottom = at.bottom * rowsHave / rowsNeed;
  return at;
}

// The first child is the topmost. On a popup controls lie on a panel, a picture that its layout lists behind them; on
// other forms pictures lie over the other controls, wherever they stand in the layout.
void FormWindow::makeControls() {
  if (!controls.empty()) return;
  const std::span<const ControlLayout> rows = layout.controls;
  const auto isInFront = [this](const ControlLayout& row) {
    return frame == FormFrame::popup || row.kind == ControlKind::pictureBox;
  };
  for (const ControlLayout& row : rows) {
    if (isInFront(row)) controls.push_back(makeControl(*this, row));
  }
  for (const ControlLayout& row : rows) {
    if (!isInFront(row)) controls.push_back(makeControl(*this, row));
  }
}

HWND FormWindow::windowAround(const ControlLayout& row) const {
  if (row.container == nullptr) return hwnd;
  const auto around = std::ranges::find_if(controls, [&](const std::unique_ptr<NativeControl>& control) {
    return std::string_view(control->layout().name) == row.container;
  });
  if (around == controls.end()) throw std::logic_error(std::string("no such container: ") + row.container);
  return (*around)->window();
}

void FormWindow::dispose() {
  disposed = true;
  unhook();
  if (uses == 0) {
    delete this;
    return;
  }
  if (hwnd != nullptr) hide();
}

bool FormWindow::isVisible() const { return hwnd != nullptr && IsWindowVisible(hwnd) != FALSE; }

void FormWindow::setCaption(const std::string& text) { SetWindowTextW(realized(), wide(text).c_str()); }

void FormWindow::setHeight(Twips height) {
  RECT outer = {};
  GetWindowRect(realized(), &outer);
  SetWindowPos(hwnd, nullptr, 0, 0, outer.right - outer.left, screenScale.pixelsY(height),
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  leaveUnreachableFocus();
}

Size FormWindow::sizeInPixels() const {
  RECT outer = {};
  GetWindowRect(realized(), &outer);
  return {outer.right - outer.left, outer.bottom - outer.top};
}

Point FormWindow::position() const {
  RECT outer = {};
  GetWindowRect(realized(), &outer);
  return {outer.left, outer.top};
}

Point FormWindow::clientOrigin() const {
  POINT origin = {};
  ClientToScreen(realized(), &origin);
  return {origin.x, origin.y};
}

// What paints its controls in one go need not have each of them erased before.
void FormWindow::showTopmostAt(Point topLeft) {
  const UINT how = SWP_NOSIZE | SWP_SHOWWINDOW | (paintsControls ? SWP_DEFERERASE : 0U);
  SetWindowPos(realized(), HWND_TOPMOST, topLeft.x, topLeft.y, 0, 0, how);
}

void FormWindow::showTopmost() {
  SetWindowPos(realized(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_SHOWWINDOW);
}

void FormWindow::hide() {
  if (hwnd == nullptr) return;
  const Use use(*this);
  if ((frame == FormFrame::popup || modal) && GetActiveWindow() == hwnd) noteActivePopupHides();
  if (menuOpen) EndMenu();
  if (tips) tips->hide();
  closeDialogsOf(hwnd);
  ShowWindow(hwnd, SW_HIDE);
  lastPointer.reset();
  if (isDialog()) lastFocus = nullptr;  // whoever opens it again begins at its first control
  for (const auto& control : controls) control->onHidden();
}

int FormWindow::popUpMenuRightAligned(std::span<const char* const> captions, Twips x, Twips y) {
  const ModuleLock lock;
  const Use use(*this);
  const HWND owner = realized();
  POINT corner = {screenScale.pixelsX(x), screenScale.pixelsY(y)};
  ClientToScreen(owner, &corner);
  menuOpen = true;
  const int chosen = trackPopupMenu(owner, captions, corner);
  menuOpen = false;
  return disposed ? -1 : chosen;
}

template <class Interface>
Interface& FormWindow::find(const std::string& name, int index) {
  makeControls();
  for (const auto& control : controls) {
    if (name != control->layout().name || index != control->layout().index) continue;
    if (auto* found = dynamic_cast<Interface*>(control.get())) return *found;
  }
  throw std::logic_error("no such control: " + name);
}

ButtonBar& FormWindow::buttonBar(const std::string& name, int index) { return find<ButtonBar>(name, index); }
ComboBox& FormWindow::comboBox(const std::string& name) { return find<ComboBox>(name, 0); }
TextBox& FormWindow::textBox(const std::string& name) { return find<TextBox>(name, 0); }
PictureBox& FormWindow::pictureBox(const std::string& name, int index) { return find<PictureBox>(name, index); }
Label& FormWindow::label(const std::string& name) { return find<Label>(name, 0); }
Button& FormWindow::button(const std::string& name, int index) { return find<Button>(name, index); }
Image& FormWindow::image(const std::string& name) { return find<Image>(name, 0); }
ListView& FormWindow::listView(const std::string& name) { return find<ListView>(name, 0); }
Preview& FormWindow::preview(const std::string& name) { return find<Preview>(name, 0); }

}  // namespace nerida

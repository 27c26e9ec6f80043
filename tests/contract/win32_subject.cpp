#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <stdexcept>
#include <thread>
#include <utility>

#include "platform/win32/button_bar.h"
#include "platform/win32/combo_box.h"
#include "platform/win32/desktop.h"
#include "platform/win32/files.h"
#include "platform/win32/label.h"
#include "platform/win32/list_view.h"
#include "platform/win32/picture_box.h"
#include "platform/win32/prompts.h"
#include "platform/win32/push_button.h"
#include "platform/win32/registry.h"
#include "platform/win32/scale.h"
#include "platform/win32/search_component.h"
#include "platform/win32/settings.h"
#include "platform/win32/shell.h"
#include "platform/win32/text.h"
#include "platform/win32/text_box.h"
#include "platform/win32/window.h"
#include "tests/contract/contract_object.h"
#include "tests/contract/subject.h"
#include "tests/contract/win32_catalog.h"
#include "tests/contract/win32_preview.h"
#include "tests/windows/bars/accessible_client.h"

namespace nerida {
namespace {

const std::wstring registryPath = L"Software\\" + wide(contractKey);
constexpr const wchar_t* settingsPaths[] = {L"Software\\VB and VBA Program Settings\\Zephra\\Contract",
                                            L"Software\\VB and VBA Program Settings\\Zephra\\ContractToo"};

HWND windowOf(Window& window) { return reinterpret_cast<HWND>(window.handle()); }

LPARAM place(POINT point) { return MAKELPARAM(point.x, point.y); }

void pump() {
  MSG message = {};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

// The pointer goes down and up over a point of a window.
void clickAt(HWND window, POINT point) {
  PostMessageW(window, WM_MOUSEMOVE, 0, place(point));
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, place(point));
  PostMessageW(window, WM_LBUTTONUP, 0, place(point));
  pump();
}

std::optional<RECT> areaOf(const SystemButtonBar& bar, const std::string& key) {
  for (int i = 0; i < bar.buttonCount(); ++i) {
    if (bar.button(i).key == key) return bar.button(i).area;
  }
  return std::nullopt;
}

bool isInSight(HWND form, HWND control, POINT point) {
  MapWindowPoints(control, form, &point, 1);
  return IsWindowVisible(form) && ChildWindowFromPointEx(form, point, CWP_SKIPINVISIBLE) == control;
}

std::function<void()> modalAction;

void CALLBACK runModalAction(HWND, UINT, UINT_PTR timer, DWORD) {
  KillTimer(nullptr, timer);
  std::exchange(modalAction, nullptr)();
}

class Win32Subject : public Subject {
 public:
  Win32Subject() {
    CoInitialize(nullptr);  // for the accessible objects
    forget();
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_LOCAL_MACHINE, registryPath.c_str(), 0, nullptr, 0, KEY_READ | KEY_WOW64_32KEY, nullptr, &key,
                    nullptr);
    RegCloseKey(key);
  }
  ~Win32Subject() override {
    forget();
    CoUninitialize();
  }

  Platform services() override {
    return {desktop, windows, prompts, registry, settings, shell, files, searchComponents};
  }

  bool press(Window& window, const std::string& bar, const std::string& key) override {
    const auto& pressed = dynamic_cast<SystemButtonBar&>(window.buttonBar(bar));
    const auto area = areaOf(pressed, key);
    if (!area) return false;
    const POINT centre = {(area->left + area->right) / 2, (area->top + area->bottom) / 2};
    if (!isInSight(windowOf(window), pressed.window(), centre)) return false;
    const bool answers = pressed.canPress(pressed.buttonAt(centre));
    clickAt(pressed.window(), centre);
    return answers;
  }

  // By keyboard: the first entry that begins with a letter.
  bool choose(Window& window, const std::string& comboBox, const std::string& entry) override {
    const HWND list = dynamic_cast<SystemComboBox&>(window.comboBox(comboBox)).window();
    if (!IsWindowVisible(list)) return false;
    PostMessageW(list, WM_CHAR, static_cast<WPARAM>(entry.at(0)), 1);
    pump();
    return true;
  }

  void mouse(Window& window, const std::string& picture, Mouse what, Twips x, Twips y) override {
    const HWND box = dynamic_cast<SystemPictureBox&>(window.pictureBox(picture)).window();
    const Scale scale = Scale::ofScreen();
    send(box, what, {scale.pixelsX(x), scale.pixelsY(y)});
  }

  void mouseOnLabel(Window& window, const std::string& label, Mouse what, bool inside) override {
    const HWND caption = dynamic_cast<SystemLabel&>(window.label(label)).window();
    send(caption, what, {inside ? 3 : -40, 3});
  }

  void pointAt(Window& window, const std::string& bar, const std::string& key) override {
    const auto& pointed = dynamic_cast<SystemButtonBar&>(window.buttonBar(bar));
    const auto area = areaOf(pointed, key);
    if (!area) throw std::logic_error("no such button: " + key);
    send(pointed.window(), Mouse::move, {(area->left + area->right) / 2, (area->top + area->bottom) / 2});
  }

  void pointAtForm(Window& window) override {
    RECT client = {};
    GetClientRect(windowOf(window), &client);
    send(windowOf(window), Mouse::move, {client.right - 2, client.bottom - 2});
  }

  void key(Window& window, const std::string& picture, Key key) override {
    SendMessageW(dynamic_cast<SystemPictureBox&>(window.pictureBox(picture)).window(), WM_KEYDOWN, codeOf(key), 1);
  }

  void keyInBar(Window& window, const std::string& bar, Key key) override {
    SendMessageW(dynamic_cast<SystemButtonBar&>(window.buttonBar(bar)).window(), WM_KEYDOWN, codeOf(key), 1);
  }

  void enter(Window& window, const std::string& textBox, const std::string& text) override {
    const HWND field = dynamic_cast<SystemTextBox&>(window.textBox(textBox)).window();
    SetWindowTextW(field, L"");
    for (const wchar_t character : wide(text)) SendMessageW(field, WM_CHAR, character, 1);
    SendMessageW(field, WM_KEYDOWN, VK_RETURN, 1);
    SendMessageW(field, WM_CHAR, VK_RETURN, 1);
  }

  bool pressPart(Window& window, const std::string& picture, std::size_t part) override {
    const Accessible box(dynamic_cast<SystemPictureBox&>(window.pictureBox(picture)).window());
    LONG count = 0;
    box->get_accChildCount(&count);
    return box.press(count == 0 ? CHILDID_SELF : static_cast<LONG>(part) + 1) == S_OK;
  }

  void answerColorDialog(ColorAnswer answer, Rgb typed) override {
    user = std::jthread([answer, typed] { answerDialog(answer, typed); });
  }
  bool chooseMenu(Window& window, const std::string& name, int index) override {
    return chooseMenuEntry(windowOf(window), window.menu(), name, index);
  }

  bool pressButton(Window& window, const std::string& name, int index) override {
    const HWND button = dynamic_cast<SystemPushButton&>(window.button(name, index)).window();
    if (!IsWindowVisible(button)) return false;
    clickAt(button, {5, 5});
    return true;
  }

  bool clickItem(Window& window, const std::string& list, int item) override {
    const HWND view = dynamic_cast<SystemListView&>(window.listView(list)).window();
    pump();
    RECT place = {LVIR_LABEL, 0, 0, 0};
    if (!IsWindowVisible(view)) return false;
    if (!SendMessageW(view, LVM_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&place))) return false;
    clickAt(view, {place.left + 3, (place.top + place.bottom) / 2});
    return true;
  }

  void typeInList(Window& window, const std::string& list, const std::string& text) override {
    pass(window, 600);  // what was typed before counts no more
    const HWND view = dynamic_cast<SystemListView&>(window.listView(list)).window();
    for (const wchar_t letter : wide(text)) PostMessageW(view, WM_CHAR, letter, 1);
    pump();
  }

  std::string folder() override { return scratch.path(); }
  void installSearch() override { search.setPresent(true); }
  void removeSearch() override { search.setPresent(false); }

  void setPreviewPresent(Window&, const std::string&, bool present) override { preview.setPresent(present); }

  void close(Window& window) override {
    PostMessageW(windowOf(window), WM_SYSCOMMAND, SC_CLOSE, 0);
    pump();
  }

  void click(Window& window) override {
    RECT client = {};
    GetClientRect(windowOf(window), &client);
    clickAt(windowOf(window), {client.right - 2, client.bottom - 2});
  }

  void pass(Window&, int milliseconds) override {
    for (const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds); GetTickCount64() < end;) {
      pump();
      Sleep(1);
    }
  }

  void duringModal(std::function<void()> action) override {
    modalAction = std::move(action);
    SetTimer(nullptr, 0, 50, runModalAction);
  }

  std::intptr_t send(Window& window, std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) override {
    return SendMessageW(windowOf(window), message, wParam, lParam);
  }

  std::string captionOf(Window& window) override {
    std::wstring text(256, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(windowOf(window), text.data(), 256)));
    return utf8(text);
  }

  Rgb colorAt(Window& window, const std::string& picture, Twips x, Twips y) override {
    const HWND box = dynamic_cast<SystemPictureBox&>(window.pictureBox(picture)).window();
    UpdateWindow(box);
    const Scale scale = Scale::ofScreen();
    const HDC dc = GetDC(box);
    const COLORREF color = GetPixel(dc, scale.pixelsX(x), scale.pixelsY(y));
    ReleaseDC(box, dc);
    return static_cast<Rgb>(color);
  }

  std::string buttonsOf(Window& window, const std::string& bar) override {
    const auto& asked = dynamic_cast<SystemButtonBar&>(window.buttonBar(bar));
    std::string text;
    for (int i = 0; i < asked.buttonCount(); ++i) {
      const std::string name = utf8(asked.buttonName(i));
      text += (asked.buttonStateFlags(i) & STATE_SYSTEM_PRESSED) != 0 ? "[" + name + "]" : name;
    }
    return text;
  }

  bool exists(WindowHandle window) override { return IsWindow(reinterpret_cast<HWND>(window)) != FALSE; }

  void storeText(const std::string& name, const std::string& text) override {
    const std::wstring data = wide(text);
    store(name, REG_SZ, data.c_str(), (data.size() + 1) * sizeof(wchar_t));
  }

  void storeBytes(const std::string& name, const std::string& bytes) override {
    store(name, REG_BINARY, bytes.data(), bytes.size());
  }

  ObjectRef makeObject() override { return makeContractObject(); }

 private:
  static void send(HWND target, Mouse what, POINT point) {
    constexpr UINT messages[] = {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONUP};
    SendMessageW(target, messages[static_cast<int>(what)], 0, place(point));
  }

  static WPARAM codeOf(Key key) {
    constexpr WPARAM codes[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_RETURN};
    return codes[static_cast<int>(key)];
  }

  static HWND awaitDialog() {
    for (int tries = 0; tries < 1000; ++tries, Sleep(10)) {
      DWORD process = 0;
      const HWND found = FindWindowW(L"#32770", nullptr);
      if (found != nullptr && IsWindowVisible(found) && GetWindowThreadProcessId(found, &process) != 0 &&
          process == GetCurrentProcessId()) {
        return found;
      }
    }
    return nullptr;
  }

  static void answerDialog(ColorAnswer answer, Rgb typed) {
    const HWND dialog = awaitDialog();
    constexpr int redField = 706;
    for (int i = 0; answer == ColorAnswer::typed && i < 3; ++i) {
      SetDlgItemInt(dialog, redField + i, static_cast<UINT>(typed >> (8 * i)) & 0xFF, FALSE);
    }
    PostMessageW(dialog, WM_COMMAND, answer == ColorAnswer::cancel ? IDCANCEL : IDOK, 0);
  }

  static void store(const std::string& name, DWORD type, const void* data, std::size_t size) {
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_LOCAL_MACHINE, registryPath.c_str(), 0, nullptr, 0, KEY_SET_VALUE | KEY_WOW64_32KEY, nullptr,
                    &key, nullptr);
    const LSTATUS status =
        RegSetValueExW(key, wide(name).c_str(), 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size));
    RegCloseKey(key);
    if (status != ERROR_SUCCESS) throw std::runtime_error("the test's registry key cannot be written");
  }

  static void forget() {
    RegDeleteKeyExW(HKEY_LOCAL_MACHINE, registryPath.c_str(), KEY_WOW64_32KEY, 0);
    for (const wchar_t* path : settingsPaths) RegDeleteKeyW(HKEY_CURRENT_USER, path);
  }

  const ScratchFolder scratch;
  SearchRegistration search;
  PreviewRegistration preview;
  SystemDesktop desktop;
  SystemWindowFactory windows;
  SystemPrompts prompts;
  SystemRegistry registry;
  SystemSettings settings;
  SystemShell shell;
  std::jthread user;
  SystemFiles files;
  SystemSearchComponents searchComponents;
};

}  // namespace

std::unique_ptr<Subject> makeSubject() { return std::make_unique<Win32Subject>(); }

}  // namespace nerida

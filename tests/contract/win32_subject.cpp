#include <windows.h>

#include <optional>
#include <stdexcept>
#include <utility>

#include "platform/win32/button_bar.h"
#include "platform/win32/combo_box.h"
#include "platform/win32/desktop.h"
#include "platform/win32/prompts.h"
#include "platform/win32/registry.h"
#include "platform/win32/settings.h"
#include "platform/win32/shell.h"
#include "platform/win32/text.h"
#include "platform/win32/window.h"
#include "tests/contract/contract_object.h"
#include "tests/contract/subject.h"

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
    forget();
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_LOCAL_MACHINE, registryPath.c_str(), 0, nullptr, 0, KEY_READ | KEY_WOW64_32KEY, nullptr, &key,
                    nullptr);
    RegCloseKey(key);
  }
  ~Win32Subject() override { forget(); }

  Platform services() override { return {desktop, windows, prompts, registry, settings, shell}; }

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

  void close(Window& window) override {
    PostMessageW(windowOf(window), WM_SYSCOMMAND, SC_CLOSE, 0);
    pump();
  }

  void click(Window& window) override {
    RECT client = {};
    GetClientRect(windowOf(window), &client);
    clickAt(windowOf(window), {client.right - 2, client.bottom - 2});
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

  SystemDesktop desktop;
  SystemWindowFactory windows;
  SystemPrompts prompts;
  SystemRegistry registry;
  SystemSettings settings;
  SystemShell shell;
};

}  // namespace

std::unique_ptr<Subject> makeSubject() { return std::make_unique<Win32Subject>(); }

}  // namespace nerida

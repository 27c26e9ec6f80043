#include "tests/windows/com/contained_control.h"

#include <windows.h>

#include <stdexcept>

namespace nerida {
namespace {

template <class Function>
Function containerFunction(const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(L"atl.dll"), name)));
}

constexpr const wchar_t* frameClass = L"ControlContainer";

void registerFrame() {
  WNDCLASSEXW description = {};
  description.cbSize = sizeof description;
  description.lpfnWndProc = DefWindowProcW;
  description.hInstance = GetModuleHandleW(nullptr);
  description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  description.lpszClassName = frameClass;
  RegisterClassExW(&description);
}

}  // namespace

ContainedControl::ContainedControl(const std::wstring& programId) {
  if (!containerFunction<BOOL(WINAPI*)()>("AtlAxWinInit")()) throw std::runtime_error("there is no control container");
  registerFrame();
  frame = CreateWindowExW(0, frameClass, L"Container", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 620, 320, 200, nullptr,
                          nullptr, GetModuleHandleW(nullptr), nullptr);
  site = CreateWindowExW(0, L"AtlAxWin", programId.c_str(), WS_CHILD | WS_VISIBLE, 20, 20, 200, 60, frame, nullptr,
                         GetModuleHandleW(nullptr), nullptr);
}

ContainedControl::~ContainedControl() { DestroyWindow(frame); }

ComPtr<IDispatch> ContainedControl::automation() const {
  ComPtr<IUnknown> control;
  ComPtr<IDispatch> result;
  containerFunction<HRESULT(WINAPI*)(HWND, IUnknown**)>("AtlAxGetControl")(site, control.put());
  if (control) control->QueryInterface(IID_IDispatch, result.putVoid());
  return result;
}

}  // namespace nerida

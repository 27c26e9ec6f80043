// zephra-host: a document with a 3D object on its page.

#include <windows.h>
// Builds on the one above.
#include <shellapi.h>

#include "host/app/document_window.h"
#include "host/app/resource.h"

namespace nerida::host {
namespace {

class Ole {
 public:
  Ole() { OleInitialize(nullptr); }
  Ole(const Ole&) = delete;
  Ole& operator=(const Ole&) = delete;
  ~Ole() { OleUninitialize(); }
};

Options commandLine() {
  int count = 0;
  wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
  if (words == nullptr || count < 1) return {};
  const std::unique_ptr<wchar_t*, decltype(&LocalFree)> owner(words, LocalFree);
  return readOptions({words + 1, static_cast<std::size_t>(count) - 1});
}

std::filesystem::path programFolder() {
  wchar_t file[32'768];
  const DWORD length = GetModuleFileNameW(nullptr, file, static_cast<DWORD>(std::size(file)));
  return std::filesystem::path(std::wstring_view(file, length)).parent_path();
}

Metrics screenMetrics() {
  HDC screen = GetDC(nullptr);
  const Metrics metrics{GetDeviceCaps(screen, LOGPIXELSY)};
  ReleaseDC(nullptr, screen);
  return metrics;
}

int pumpMessages(HWND window, HACCEL accelerators) {
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (message.hwnd == window && TranslateAcceleratorW(window, accelerators, &message) != 0) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return static_cast<int>(message.wParam);
}

int run(HINSTANCE program, int show) {
  const Options options = commandLine();
  if (options.rightToLeft) SetProcessDefaultLayout(LAYOUT_RTL);
  const Ole ole;
  DocumentWindow document(program, screenMetrics());
  document.create(options);
  ShowWindow(document.handle(), show);
  UpdateWindow(document.handle());
  const auto model = options.model ? options.model : findDefaultModel(programFolder());
  if (model) document.open(*model);
  if (options.activate) document.activate();
  return pumpMessages(document.handle(), LoadAcceleratorsW(program, MAKEINTRESOURCEW(IDA_MAIN)));
}

}  // namespace
}  // namespace nerida::host

int WINAPI WinMain(HINSTANCE program, HINSTANCE, char*, int show) {
  SetProcessDPIAware();
  try {
    return nerida::host::run(program, show);
  } catch (const std::exception& error) {
    MessageBoxW(nullptr, nerida::host::wide(error.what()).c_str(), L"Zephra Document", MB_OK | MB_ICONERROR);
    return 2;
  }
}

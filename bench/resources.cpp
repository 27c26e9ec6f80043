// What a toolbar on the screen holds of the system, and whether it gives it all back.
#include "bench/resources.h"

#include <windows.h>
// After windows.h.
#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <vector>

#include "bench/bare_toolbar.h"
#include "bench/control.h"
#include "bench/measurements.h"

namespace nerida::bench {
namespace {

BOOL CALLBACK countWindow(HWND, LPARAM count) {
  ++*reinterpret_cast<long*>(count);
  return TRUE;
}

BOOL CALLBACK countTree(HWND window, LPARAM count) {
  countWindow(window, count);
  EnumChildWindows(window, countWindow, count);
  return TRUE;
}

// The documented counters (GetProcessHandleCount, GetGuiResources) are always 0 under Wine. There the handles are
// counted in the list of all, and the drawing objects by their index, which Wine takes for a handle.
long countHandles() {
  DWORD counted = 0;
  if (GetProcessHandleCount(GetCurrentProcess(), &counted) && counted > 0) return static_cast<long>(counted);
  constexpr auto systemHandleInformation = static_cast<SYSTEM_INFORMATION_CLASS>(16);
  struct Entry {
    ULONG process;
    BYTE type, flags;
    USHORT handle;
    void* object;
    ULONG access;
  };
  std::vector<BYTE> table(std::size_t{4} << 20);
  require(
      NtQuerySystemInformation(systemHandleInformation, table.data(), static_cast<ULONG>(table.size()), nullptr) == 0,
      "the system lists its handles");
  ULONG count = 0;
  std::memcpy(&count, table.data(), sizeof count);
  const auto* entries = reinterpret_cast<const Entry*>(table.data() + sizeof(void*));
  return static_cast<long>(std::count_if(entries, entries + count,
                                         [](const Entry& entry) { return entry.process == GetCurrentProcessId(); }));
}

long countGdiObjects() {
  if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS); counted > 0) {
    return static_cast<long>(counted);
  }
  constexpr std::uintptr_t indices = 0x4000;
  long objects = 0;
  for (std::uintptr_t index = 1; index < indices; ++index) {
    objects += GetObjectType(reinterpret_cast<HGDIOBJ>(index)) != 0 ? 1 : 0;
  }
  return objects;
}

}  // namespace

Resources held() {
  Resources result;
  PROCESS_MEMORY_COUNTERS memory = {};
  GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
  result.workingSet = static_cast<long>(memory.WorkingSetSize / 1024);
  result.handles = countHandles();
  result.gdiObjects = countGdiObjects();
  EnumThreadWindows(GetCurrentThreadId(), countTree, reinterpret_cast<LPARAM>(&result.windows));
  return result;
}

void print(const char* kind, const Resources& figures) {
  std::printf("%s.workingset %ld\n%s.handles %ld\n%s.gdi %ld\n%s.windows %ld\n", kind, figures.workingSet, kind,
              figures.handles, kind, figures.gdiObjects, kind, figures.windows);
}

Resources operator-(const Resources& after, const Resources& before) {
  return {after.workingSet - before.workingSet, after.handles - before.handles, after.gdiObjects - before.gdiObjects,
          after.windows - before.windows};
}

void toolbarShown() {
  Model model;
  const Control control(model);
  paintNow(control.window());
  print("toolbar", held());
}

void bareToolbarShown() {
  BareToolbar::prepare();
  BareToolbar toolbar;
  toolbar.show();
  paintNow(toolbar.window());
  print("bare", held());
}

void showingAndHiding() {
  constexpr int warmUp = 100, cycles = 1000;
  Model model;
  Control control(model);
  const auto cycle = [&](int times) {
    for (int i = 0; i < times; ++i) {
      control.hide();
      pumpMessages();
      control.show();
      paintNow(control.window());
      pumpMessages();
    }
  };
  cycle(warmUp);
  const Resources before = held();
  cycle(cycles);
  print("growth", held() - before);
}

}  // namespace nerida::bench

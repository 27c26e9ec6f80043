// What a toolbar on the screen holds of the system, and whether it gives it all back.
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

struct Resources {
  long workingSet = 0;  // KiB
  long handles = 0;
  long gdiObjects = 0;
  long windows = 0;
};

BOOL CALLBACK countWindow(HWND, LPARAM count) {
  ++*reinterpret_cast<long*>(count);
  return TRUE;
}

BOOL CALLBACK countTree(HWND window, LPARAM count) {
  countWindow(window, count);
  EnumChildWindows(window, countWindow, count);
  return TRUE;
}

// The documented counters (GetProcessHandleCount, GetGuiResources) are always 0 under Wine. Where they are, the
// system's own tables are counted.
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
  require(NtQuerySystemInformation(systemHandleInformation, table.data(), static_cast<ULONG>(table.size()), nullptr) ==
              0,
          "the system lists its handles");
  ULONG count = 0;
  std::memcpy(&count, table.data(), sizeof count);
  const auto* entries = reinterpret_cast<const Entry*>(table.data() + sizeof(void*));
  return static_cast<long>(std::count_if(entries, entries + count, [](const Entry& entry) {
    return entry.process == GetCurrentProcessId();
  }));
}

long countGdiObjects() {
  if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS); counted > 0) {
    return static_cast<long>(counted);
  }
  struct Entry {
    std::uint64_t object;
    ULONG owner;
    USHORT unique;
    BYTE type, flags;
    std::uint64_t user;
  };
  constexpr std::size_t tableAt = sizeof(void*) == 4 ? 0x94 : 0xF8;  // in the process's environment block
  constexpr int capacity = 0x4000;
  PROCESS_BASIC_INFORMATION process = {};
  NtQueryInformationProcess(GetCurrentProcess(), ProcessBasicInformation, &process, sizeof process, nullptr);
  const auto* block = reinterpret_cast<const BYTE*>(process.PebBaseAddress);
  const auto* entries = *reinterpret_cast<const Entry* const*>(block + tableAt);
  require(entries != nullptr, "the process has a table of its drawing objects");
  return static_cast<long>(std::count_if(entries, entries + capacity, [](const Entry& entry) {
    return entry.type != 0;
  }));
}

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

}  // namespace

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
  const Resources after = held();
  print("growth", {after.workingSet - before.workingSet, after.handles - before.handles,
                   after.gdiObjects - before.gdiObjects, after.windows - before.windows});
}

}  // namespace nerida::bench

#pragma once

#include <ActiveNeridaToolbar_h.h>
#include <ole2.h>

#include <string>

#include "platform/win32/com.h"

namespace nerida {

// The control's file, which the test program was given as its argument.
std::wstring controlFile();

// The control's module, loaded without any registration.
class ControlModule {
 public:
  ControlModule();
  ~ControlModule();
  ControlModule(const ControlModule&) = delete;
  ControlModule& operator=(const ControlModule&) = delete;

  // Calls an entry point without arguments (DllRegisterServer, DllCanUnloadNow, …).
  HRESULT call(const char* name) const;
  HRESULT install(bool install, const wchar_t* commandLine) const;
  ComPtr<IClassFactory> factory() const;
  ComPtr<_NeridaWindow> create() const;

 private:
  template <typename Function>
  Function entry(const char* name) const;

  HMODULE module;
};

}  // namespace nerida

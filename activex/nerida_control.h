#pragma once

#include <atomic>

#include "activex/automation_face.h"
#include "activex/ole_face.h"
#include "platform/win32/module.h"

namespace nerida {

// The creatable COM object. Its last release ends the control, with everything that this shows or calls.
class NeridaControl final : private ModuleLock, public AutomationFace, public OleFace {
 public:
  // Starts with one reference, the caller's.
  NeridaControl() = default;

  STDMETHODIMP QueryInterface(REFIID id, void** result) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;

 private:
  ~NeridaControl() = default;

  IUnknown* find(REFIID id);

  std::atomic<ULONG> references = 1;
};

}  // namespace nerida

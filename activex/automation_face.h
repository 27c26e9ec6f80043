#pragma once

#include <ActiveNeridaToolbar_h.h>

#include <optional>

#include "activex/process_library.h"
#include "control/traced_window.h"

namespace nerida {

// The control's dual interface. The methods are also reached by late binding, through a dispatcher of our own: it
// takes every form of argument that scripts and BASIC programs send for a by-reference one.
class AutomationFace : public _NeridaWindow {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  STDMETHODIMP GetIDsOfNames(REFIID reserved, OLECHAR** names, UINT count, LCID locale, DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID member, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT* argumentError) override;

  STDMETHODIMP IsToolbarVisible(VARIANT_BOOL* result) override;
  STDMETHODIMP IsCatalogVisible(VARIANT_BOOL* result) override;
  STDMETHODIMP ToolbarDispose(LONG* result) override;
  STDMETHODIMP ToolbarShow(SHORT* x, SHORT* y, LONG* result) override;
  STDMETHODIMP ToolbarHide(LONG* result) override;
  STDMETHODIMP ToolbarInit(IDispatch** model, LONG* hostWindow, LONG* result) override;
  STDMETHODIMP ShowAboutBox(VARIANT* result) override;
  STDMETHODIMP ShowHelp(VARIANT* result) override;
  STDMETHODIMP ShowCatalog(LONG* result) override;

 protected:
  AutomationFace() = default;
  ~AutomationFace() = default;

 private:
  const LibraryHold hold;
  TracedWindow control{hold.library(), hold.trace()};
};

}  // namespace nerida

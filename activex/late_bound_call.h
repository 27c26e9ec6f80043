#pragma once

#include <ActiveNeridaToolbar_h.h>

#include "platform/win32/com.h"

namespace nerida {

// The dispatch identifiers of a method's name and, after it, of its arguments' names.
HRESULT memberIds(OLECHAR** names, UINT count, DISPID* ids);

// One call of the control's interface by dispatch identifier.
class LateBoundCall {
 public:
  // result and argumentError may be null.
  LateBoundCall(_NeridaWindow& control, DISPPARAMS& parameters, VARIANT* result, UINT* argumentError)
      : control(control), parameters(parameters), result(result), argumentError(argumentError) {}

  HRESULT run(DISPID member, WORD flags);

 private:
  HRESULT checkNames() const;
  HRESULT dispatch(DISPID member);
  template <typename Result, typename Method>
  HRESULT call(Method method);
  HRESULT toolbarShow();
  HRESULT toolbarInit();
  // Reads an argument as the type that the method takes, whatever form it came in.
  HRESULT argument(UINT position, VARTYPE type, VARIANT& converted);
  void writeBack(UINT position, SHORT before, SHORT after);
  VARIANT* sent(UINT position) const;
  void store(LONG value);
  void store(VARIANT_BOOL value);
  void store(VARIANT value);

  _NeridaWindow& control;
  DISPPARAMS& parameters;
  VARIANT* result;
  UINT* argumentError;
};

}  // namespace nerida

#pragma once

#include <oaidl.h>
#include <windows.h>

#include <span>
#include <string>

#include "platform/win32/com.h"

namespace nerida {

// Error 438 when the object has no such member.
DISPID findMember(IDispatch& object, const std::string& name);

// Whether the object is one of a script language's. These receive by-ref arguments only as references to variants:
// others they refuse, or take without ever filling them.
bool isScriptObject(IDispatch& object);

// What an invocation came to: its status, and which argument the object refused before it ran (-1 for none).
struct Outcome {
  HRESULT status;
  int refusedArgument;
};

// Arguments stand in reverse order, as automation wants them. After a failure the exception record belongs to the
// caller, who hands it to errorFromInvoke.
Outcome invoke(IDispatch& object, DISPID member, WORD flags, std::span<VARIANT> arguments, VARIANT* result,
               EXCEPINFO& exception);

// Reads a property or calls a function without arguments.
void getMember(IDispatch& object, const std::string& name, Variant& result);

}  // namespace nerida

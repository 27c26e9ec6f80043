#pragma once

#include <oaidl.h>
#include <windows.h>

#include "platform/error.h"

namespace nerida {

// The one place where failures of automation become run-time errors.
Error errorFromStatus(HRESULT status);

// The failure of a call through an interface that may have left more about it with the thread.
Error errorFromComponent(HRESULT status, IUnknown& component, REFIID calledInterface);

// The failure of an Invoke. Takes the texts in the exception record, which it runs the deferred fill-in of first.
Error errorFromInvoke(HRESULT status, EXCEPINFO& exception);

}  // namespace nerida

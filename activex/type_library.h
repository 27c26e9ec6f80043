#pragma once

#include <oaidl.h>
#include <windows.h>

#include <string>

#include "platform/win32/com.h"

namespace nerida {

std::wstring modulePath();

// A description out of the type library inside the module; it need not be registered. Null when it cannot be loaded.
ComPtr<ITypeInfo> typeInfo(REFGUID id);

}  // namespace nerida

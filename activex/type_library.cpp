#include "activex/type_library.h"

#include <ActiveNeridaToolbar_h.h>

#include "platform/win32/module.h"

namespace nerida {

std::wstring modulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(moduleInstance(), path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

ComPtr<ITypeInfo> typeInfo(REFGUID id) {
  ComPtr<ITypeLib> library;
  ComPtr<ITypeInfo> result;
  if (FAILED(LoadTypeLibEx(modulePath().c_str(), REGKIND_NONE, library.put()))) return {};
  if (FAILED(library->GetTypeInfoOfGuid(id, result.put()))) return {};
  return result;
}

}  // namespace nerida

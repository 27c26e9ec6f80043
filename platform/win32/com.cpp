#include "platform/win32/com.h"

#include <new>

namespace nerida {

Bstr::Bstr(std::wstring_view characters)
    : text(SysAllocStringLen(characters.data(), static_cast<UINT>(characters.size()))) {
  if (text == nullptr) throw std::bad_alloc();
}

}  // namespace nerida

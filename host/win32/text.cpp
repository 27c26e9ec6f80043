#include "host/win32/com.h"

namespace nerida::host {

std::wstring wide(std::string_view text) {
  const int length = static_cast<int>(text.size());
  std::wstring result(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0)),
                      L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), length, result.data(), static_cast<int>(result.size()));
  return result;
}

std::string utf8(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const int needed = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), needed, nullptr, nullptr);
  return result;
}

}  // namespace nerida::host

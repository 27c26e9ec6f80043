#include "platform/win32/text.h"

#include <windows.h>

#include <algorithm>

namespace nerida {
namespace {

// Most texts, which need no more than to be copied.
template <class Text>
bool isAscii(Text text) {
  return std::ranges::all_of(text, [](auto character) { return character >= 0 && character < 128; });
}

}  // namespace

std::wstring wide(std::string_view text) {
  if (isAscii(text)) return {text.begin(), text.end()};
  const int length = static_cast<int>(text.size());
  const int needed = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
  std::wstring result(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), length, result.data(), needed);
  return result;
}

std::string utf8(std::wstring_view text) {
  if (isAscii(text)) {
    std::string result(text.size(), '\0');
    std::ranges::transform(text, result.begin(), [](wchar_t character) { return static_cast<char>(character); });
    return result;
  }
  const int length = static_cast<int>(text.size());
  const int needed = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), needed, nullptr, nullptr);
  return result;
}

}  // namespace nerida

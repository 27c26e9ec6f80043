#pragma once

#include <string>
#include <string_view>

namespace nerida {

// Text is UTF-8 inside the library and UTF-16 towards the system. Malformed input is replaced, never refused.
std::wstring wide(std::string_view text);
std::string utf8(std::wstring_view text);

}  // namespace nerida

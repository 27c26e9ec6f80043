#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace nerida {

// The 16-bit number that a typed text stands for, rounded half to even, or nothing when the text as a whole is no
// number or one out of range. Understood are blanks around it, a sign before or behind, brackets for a negative number,
// "$", "," between digits, a decimal point, an exponent, and "&H" and "&O" for 16 bits in hexadecimal and octal.
std::optional<std::int16_t> frameNumberIn(const std::string& text);

}  // namespace nerida

#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace nerida {

class Object;
using ObjectRef = std::shared_ptr<Object>;

struct Value;

// A one-dimensional automation array; the index of its first element is lowerBound.
struct Array {
  std::int32_t lowerBound = 0;
  std::vector<Value> elements;
};

struct Null {
  friend constexpr bool operator==(Null, Null) = default;
};

// An automation value. The alternative in use is the exact type that crosses the interface:
// empty, null, 16-bit Boolean, 16-bit and 32-bit integer, double, text (UTF-8 here, UTF-16 outside), object, array.
struct Value : std::variant<std::monostate, Null, bool, std::int16_t, std::int32_t, double, std::string, ObjectRef,
                            std::shared_ptr<const Array>> {
  using variant::variant;
  bool isEmpty() const { return index() == 0; }
};

// Conversions as the late-bound caller of an automation object makes them: numbers are rounded half to even; text is
// converted when all of it is a number; a Boolean is anything that is not zero; empty is 0, false or "".
// Errors: 6 when the number does not fit, 13 when there is no conversion (null included, but see toBoolean).
bool toBoolean(const Value& value);  // null is false; the texts "True" and "False" are understood
std::int16_t toInt16(const Value& value);
std::int32_t toInt32(const Value& value);
std::string toText(const Value& value);  // null is ""

// Rounds half to even. Errors: 6 when the result does not fit.
std::int16_t roundToInt16(double number);
std::int32_t roundToInt32(double number);

// True when all of the text, blanks around it aside, is one number.
bool isNumeric(const std::string& text);

// The number at the start of a text, blanks skipped ("12abc" is 12, "abc" is 0, "&HFF" is 255). Never fails.
double leadingNumber(const std::string& text);

}  // namespace nerida

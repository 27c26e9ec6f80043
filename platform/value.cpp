#include "platform/value.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "platform/error.h"

namespace nerida {
namespace {

std::string_view withoutBlanks(std::string_view text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

// The longest decimal number at the start of a text, and how many characters it takes.
std::optional<double> decimalPrefix(std::string_view text, std::size_t& length) {
  std::size_t i = 0;
  const auto digits = [&] {
    const std::size_t start = i;
    while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i]))) ++i;
    return i - start;
  };
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  std::size_t significant = digits();
  if (i < text.size() && text[i] == '.') {
    ++i;
    significant += digits();
  }
  if (significant == 0) return std::nullopt;
  const std::size_t mantissa = i;
  if (i < text.size() && std::toupper(static_cast<unsigned char>(text[i])) == 'E') {
    ++i;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    if (digits() == 0) i = mantissa;
  }
  length = i;
  const std::size_t sign = text.front() == '+' ? 1 : 0;
  double number = 0;
  const auto result = std::from_chars(text.data() + sign, text.data() + i, number);
  if (result.ec == std::errc::result_out_of_range) {  // too large, or with a negative exponent too small
    const bool tooSmall = text.substr(mantissa, i - mantissa).find('-') != std::string_view::npos;
    return tooSmall ? 0 : std::numeric_limits<double>::infinity();
  }
  return number;
}

// Hexadecimal and octal numbers are written "&HFF" and "&O17"; four hexadecimal digits are a signed 16-bit number.
std::optional<double> radixNumber(std::string_view text) {
  if (text.size() < 3 || text[0] != '&') return std::nullopt;
  const int letter = std::toupper(static_cast<unsigned char>(text[1]));
  if (letter != 'H' && letter != 'O') return std::nullopt;
  std::uint32_t bits = 0;
  const auto [end, failure] = std::from_chars(text.data() + 2, text.data() + text.size(), bits, letter == 'H' ? 16 : 8);
  if (failure != std::errc()) return std::nullopt;
  if (letter == 'H' && end - text.data() <= 6) return static_cast<std::int16_t>(bits);
  return static_cast<std::int32_t>(bits);
}

double wholeNumber(const std::string& text) {
  const std::string_view body = withoutBlanks(text);
  std::size_t length = 0;
  const std::optional<double> number = decimalPrefix(body, length);
  if (!number || length != body.size()) throw Error(error::typeMismatch);
  return *number;
}

struct ToNumber {
  double operator()(std::monostate) const { return 0; }
  double operator()(Null) const { throw Error(error::typeMismatch); }
  double operator()(bool value) const { return value ? -1 : 0; }
  double operator()(std::int16_t value) const { return value; }
  double operator()(std::int32_t value) const { return value; }
  double operator()(double value) const { return value; }
  double operator()(const std::string& text) const { return wholeNumber(text); }
  double operator()(const ObjectRef&) const { throw Error(error::typeMismatch); }
  double operator()(const std::shared_ptr<const Array>&) const { throw Error(error::typeMismatch); }
};

double toNumber(const Value& value) { return std::visit(ToNumber{}, static_cast<const Value::variant&>(value)); }

bool equalsIgnoringCase(std::string_view a, std::string_view lower) {
  if (a.size() != lower.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (std::tolower(static_cast<unsigned char>(a[i])) != lower[i]) return false;
  }
  return true;
}

template <class Integer>
Integer rounded(double number) {
  const double whole = std::nearbyint(number);  // the default rounding mode is half to even
  if (!(whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max())) {
    throw Error(error::overflow);
  }
  return static_cast<Integer>(whole);
}

std::string numberText(double number) {
  char buffer[40];
  const auto [end, failure] = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::general, 15);
  return failure == std::errc() ? std::string(buffer, end) : std::string();
}

}  // namespace

std::int16_t roundToInt16(double number) { return rounded<std::int16_t>(number); }

std::int32_t roundToInt32(double number) { return rounded<std::int32_t>(number); }

bool toBoolean(const Value& value) {
  if (std::holds_alternative<Null>(value)) return false;
  if (const auto* text = std::get_if<std::string>(&value)) {
    const std::string_view body = withoutBlanks(*text);
    if (equalsIgnoringCase(body, "true") || body == "#TRUE#") return true;
    if (equalsIgnoringCase(body, "false") || body == "#FALSE#") return false;
  }
  return toNumber(value) != 0;
}

std::int16_t toInt16(const Value& value) { return roundToInt16(toNumber(value)); }

std::int32_t toInt32(const Value& value) { return roundToInt32(toNumber(value)); }

std::string toText(const Value& value) {
  if (value.isEmpty() || std::holds_alternative<Null>(value)) return {};
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? "True" : "False";
  return numberText(toNumber(value));
}

bool isNumeric(const std::string& text) {
  const std::string_view body = withoutBlanks(text);
  std::size_t length = 0;
  return decimalPrefix(body, length).has_value() && length == body.size();
}

double leadingNumber(const std::string& text) {
  std::string packed;  // blanks do not count, wherever they stand
  for (const char c : text) {
    if (c != ' ' && c != '\t' && c != '\n' && c != '\r') packed += c;
  }
  if (const std::optional<double> number = radixNumber(packed)) return *number;
  std::size_t length = 0;
  return decimalPrefix(packed, length).value_or(0);
}

}  // namespace nerida

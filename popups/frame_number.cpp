#include "popups/frame_number.h"

#include <cctype>
#include <charconv>
#include <string_view>

#include "core/trap.h"
#include "platform/value.h"

namespace nerida {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Reads a decimal number as people write it, from left to right.
class DecimalReader {
 public:
  explicit DecimalReader(std::string_view text) : rest(text) {}

  std::optional<double> read() {
    while (takeOrnament(true)) {
    }
    takeDigits(true);
    if (take('.')) {
      plain += '.';
      takeDigits(false);
    }
    if (digits == 0 || !takeExponent()) return std::nullopt;
    while (takeOrnament(false)) {
    }
    if (!rest.empty() || bracketOpen || (bracketed && sign)) return std::nullopt;
    return value();
  }

 private:
  bool take(char expected) {
    if (rest.empty() || rest.front() != expected) return false;
    rest.remove_prefix(1);
    return true;
  }

  // Blanks, and once each a sign, a currency mark and a pair of brackets around the digits.
  bool takeOrnament(bool before) {
    if (!rest.empty() && std::isspace(static_cast<unsigned char>(rest.front()))) return take(rest.front());
    if (!sign && (take('-') || take('+'))) {
      sign = last();
      return true;
    }
    if (!currency && take('$')) return currency = true;
    if (before && !bracketed && take('(')) return bracketed = bracketOpen = true;
    if (!before && bracketOpen && take(')')) {
      bracketOpen = false;
      return true;
    }
    return false;
  }

  char last() const { return *(rest.data() - 1); }

  void takeDigits(bool grouped) {
    while (!rest.empty() && (isDigit(rest.front()) || (grouped && digits > 0 && rest.front() == ','))) {
      if (isDigit(rest.front())) {
        plain += rest.front();
        ++digits;
      }
      rest.remove_prefix(1);
    }
  }

  // False when an exponent is begun and has no digits.
  bool takeExponent() {
    if (!(take('e') || take('E') || take('d') || take('D'))) return true;
    plain += 'e';
    if (take('-') || take('+')) plain += last();
    const int before = digits;
    takeDigits(false);
    return digits > before;
  }

  std::optional<double> value() const {
    double number = 0;
    const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), number);
    if (result.ec == std::errc::result_out_of_range) {
      if (plain.find("e-") == std::string::npos) return std::nullopt;
      number = 0;
    }
    return bracketed || sign == '-' ? -number : number;
  }

  std::string_view rest;
  std::string plain;  // the number without its ornaments
  int digits = 0;
  char sign = 0;
  bool currency = false;
  bool bracketed = false;
  bool bracketOpen = false;
};

std::string_view trimmed(std::string_view text) {
  const auto isBlank = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

// The bits of a 16-bit number: "&HFFFF" is -1.
std::optional<std::int16_t> radixNumber(std::string_view text, int base) {
  std::uint16_t bits = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), bits, base);
  if (failure != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return static_cast<std::int16_t>(bits);
}

}  // namespace

std::optional<std::int16_t> frameNumberIn(const std::string& text) {
  const std::string_view body = trimmed(text);
  if (body.size() > 2 && body[0] == '&') {
    const int letter = std::toupper(static_cast<unsigned char>(body[1]));
    if (letter == 'H') return radixNumber(body.substr(2), 16);
    if (letter == 'O') return radixNumber(body.substr(2), 8);
  }
  std::optional<std::int16_t> frame;
  if (const std::optional<double> number = DecimalReader(body).read()) {
    ignoringErrors([&] { frame = roundToInt16(*number); });
  }
  return frame;
}

}  // namespace nerida

#include "platform/bitmap_spec.h"

#include <charconv>
#include <optional>
#include <string_view>

#include "platform/error.h"

namespace nerida {
namespace {

// Beyond this no bitmap of a button bar reaches; it also keeps sums of coordinates far from overflow.
constexpr int largestCoordinate = 32767;

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// Takes the next field off the front of the rest.
std::string_view takeField(std::string_view& rest) {
  const std::size_t comma = rest.find(',');
  const std::string_view field = rest.substr(0, comma);
  rest = comma == std::string_view::npos ? std::string_view() : rest.substr(comma + 1);
  return trimmed(field);
}

std::optional<int> number(std::string_view field) {
  int value = 0;
  const auto [end, failure] = std::from_chars(field.data(), field.data() + field.size(), value);
  if (failure != std::errc() || end != field.data() + field.size()) return std::nullopt;
  if (value < -largestCoordinate || value > largestCoordinate) return std::nullopt;
  return value;
}

int sizeOr(std::string_view field, int standard) {
  const int size = number(field).value_or(standard);
  return size > 0 ? size : standard;
}

}  // namespace

BitmapSpec parseBitmapSpec(const std::string& text) {
  std::string_view rest = text;
  const std::optional<int> kind = number(takeField(rest));
  if (!kind) throw Error(error::invalidCall);
  BitmapSpec spec;
  spec.kind = *kind;
  spec.file = takeField(rest);
  spec.left = number(takeField(rest)).value_or(0);
  spec.top = number(takeField(rest)).value_or(0);
  spec.width = sizeOr(takeField(rest), standardPictureWidth);
  spec.height = sizeOr(takeField(rest), standardPictureHeight);
  return spec;
}

}  // namespace nerida

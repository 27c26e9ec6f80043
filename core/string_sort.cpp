#include "core/string_sort.h"

#include <utility>

#include "platform/error.h"

namespace nerida {
namespace {

std::string& elementAt(StringArray& strings, std::int32_t position) {
  if (position < 0 || position >= static_cast<std::int32_t>(strings.elements.size())) {
    throw Error(error::subscriptOutOfRange);
  }
  return strings.elements[static_cast<std::size_t>(position)];
}

}  // namespace

void SortStrings(StringArray& strings) {
  if (strings.elements.empty()) throw Error(error::subscriptOutOfRange);
  for (std::int32_t i = 0; i <= strings.upperBound(); ++i) {
    for (std::int32_t j = 0; j <= strings.upperBound(); ++j) {
      if (elementAt(strings, j) > elementAt(strings, i)) {
        SwapStrings(strings, static_cast<std::int16_t>(i), static_cast<std::int16_t>(j));
      }
    }
  }
}

void SwapStrings(StringArray& strings, std::int16_t i, std::int16_t j) {
  std::swap(elementAt(strings, i), elementAt(strings, j));
}

}  // namespace nerida

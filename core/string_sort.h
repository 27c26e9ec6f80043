#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace nerida {

// A list of texts whose first index is lowerBound.
struct StringArray {
  std::int32_t lowerBound = 0;
  std::vector<std::string> elements;

  std::int32_t upperBound() const { return lowerBound + static_cast<std::int32_t>(elements.size()) - 1; }
};

// Sorts in place into ascending order of character codes. Positions are counted from 0 to the upper bound and name
// elements counted from the first one, so a list that does not start at 0 runs past its end.
// Error 9 for a list without elements and for a position past the end.
void SortStrings(StringArray& strings);

// Exchanges two elements, counted from the first. Error 9 outside the list.
void SwapStrings(StringArray& strings, std::int16_t i, std::int16_t j);

}  // namespace nerida

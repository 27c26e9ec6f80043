#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace nerida::search {

/// The characters of a UTF-8 text; bytes that are no UTF-8 stand for themselves.
std::u32string characters(std::string_view text);
/// The same into a text that is used again and again.
void takeCharacters(std::string_view text, std::u32string& characters);

/// By how many slips of the finger (a letter too many, too few, wrong, or two neighbours swapped) two words differ;
/// anything above `limit` when there are more.
std::size_t slipsBetween(std::u32string_view one, std::u32string_view other, std::size_t limit);

/// How many slips are forgiven in a word: none in very short ones and in those with digits.
std::size_t forgivenSlips(std::u32string_view word);

}  // namespace nerida::search

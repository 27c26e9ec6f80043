#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>

#include "host/win32/com.h"

namespace nerida::host {

/// An automation array with one owner. Making one throws std::bad_alloc.
class Array {
 public:
  explicit Array(std::span<const std::wstring> texts);
  explicit Array(std::span<const std::int32_t> numbers);
  explicit Array(std::span<const std::int16_t> numbers);
  Array(Array&& other) noexcept : array(std::exchange(other.array, nullptr)), type(other.type) {}
  Array(const Array&) = delete;
  Array& operator=(const Array&) = delete;
  ~Array() { SafeArrayDestroy(array); }

  [[nodiscard]] VARTYPE elements() const { return type; }
  /// The same values as variants, which is all that script languages can read.
  [[nodiscard]] Array asVariants() const;
  /// Hands the array over; the one that was there goes away. A caller's array that is in use is an error, and stays.
  HRESULT replace(SAFEARRAY** target);
  SAFEARRAY* release() { return std::exchange(array, nullptr); }

 private:
  Array(VARTYPE type, std::size_t count);
  template <typename Number>
  void copy(std::span<const Number> numbers);

  SAFEARRAY* array;
  VARTYPE type;
};

/// Stores an array in a by-reference argument: in one for an array of its type as it is, in one for anything as
/// variants. An argument by value stays as it is: the languages that can pass nothing else ask for the result only.
/// The status says whether the argument was of a fitting type.
HRESULT store(VARIANTARG& target, Array array);

/// The same for a number.
HRESULT store(VARIANTARG& target, LONG number);

}  // namespace nerida::host

#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "host/win32/com.h"

namespace nerida::host {

/// A member that fails for its caller: becomes an automation exception.
struct MemberError {
  int number;
  std::string description;  ///< UTF-8, one sentence
};

inline constexpr int invalidCall = 5;
inline constexpr int fileNotFound = 53;
inline constexpr int invalidPropertyValue = 380;

/// Why a file could not be used: it is not there, or it is not what the member wants.
MemberError unusableFile(const std::filesystem::path& file, const std::string& why);

/// A call that does not fit the member: answered with a bare status, and the position of the argument.
struct CallRefused {
  HRESULT status;
  UINT argument = 0;  ///< as it stands in DISPPARAMS
};

/// The arguments of one call in their natural order.
class Arguments {
 public:
  explicit Arguments(std::span<VARIANTARG> reversed) : values(reversed) {}

  [[nodiscard]] std::size_t count() const { return values.size(); }
  [[nodiscard]] VARIANTARG& at(std::size_t index) const { return values[values.size() - 1 - index]; }

  // Converted the way automation converts; an argument that cannot be converted refuses the call.
  [[nodiscard]] int number(std::size_t index) const;
  [[nodiscard]] bool boolean(std::size_t index) const;
  [[nodiscard]] std::wstring text(std::size_t index) const;

  // For arguments that are references. Others are refused: the caller would never see what was stored.
  void store(std::size_t index, int value) const;
  void store(std::size_t index, const std::vector<std::string>& texts) const;

 private:
  void convert(std::size_t index, VARTYPE type, VARIANT& result) const;
  [[nodiscard]] CallRefused refusal(HRESULT status, std::size_t index) const;
  void replace(std::size_t index, VARIANT& value) const;

  std::span<VARIANTARG> values;
};

// Results: nothing is done when the caller wants none.
void answer(VARIANT* result, int value);
void answer(VARIANT* result, bool value);
void answer(VARIANT* result, const std::string& value);

}  // namespace nerida::host

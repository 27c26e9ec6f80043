#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace nerida {

// Run-time error numbers that the library raises or tells apart. Failures of the outside world are translated to
// these by the platform, so that every room above sees one kind of failure.
namespace error {
inline constexpr std::int32_t invalidCall = 5;
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t outOfMemory = 7;
inline constexpr std::int32_t subscriptOutOfRange = 9;
inline constexpr std::int32_t typeMismatch = 13;
inline constexpr std::int32_t outOfStackSpace = 28;
inline constexpr std::int32_t badFileName = 52;
inline constexpr std::int32_t fileNotFound = 53;
inline constexpr std::int32_t deviceUnavailable = 68;
inline constexpr std::int32_t diskNotReady = 71;
inline constexpr std::int32_t objectNotSet = 91;
inline constexpr std::int32_t noSuchElement = 340;
inline constexpr std::int32_t alreadyLoaded = 360;
inline constexpr std::int32_t cannotCreateObject = 429;
inline constexpr std::int32_t noInterface = 430;
inline constexpr std::int32_t noSuchMember = 438;
inline constexpr std::int32_t notImplemented = 445;
inline constexpr std::int32_t argumentNotOptional = 449;
inline constexpr std::int32_t wrongArgumentCount = 450;
inline constexpr std::int32_t invalidPicture = 481;
}  // namespace error

// The standard text of an error number; without one it is an application's own, or beyond 16 bits an automation error.
std::string standardErrorText(std::int32_t number);

// A failed operation: a run-time error number and its description. The only exception type of the library.
class Error : public std::exception {
 public:
  explicit Error(std::int32_t number) : Error(number, standardErrorText(number)) {}
  Error(std::int32_t number, std::string description) : number(number), description(std::move(description)) {}

  const char* what() const noexcept override { return description.c_str(); }

  std::int32_t number;
  std::string description;
};

}  // namespace nerida

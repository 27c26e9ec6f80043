#include "host/library/model_path.h"

#include <cstdlib>
#include <string>

namespace nerida::library {
namespace {

std::string folder(std::int32_t number) {
  std::string digits = std::to_string(std::llabs(number));
  if (digits.size() < 4) digits.insert(0, 4 - digits.size(), '0');
  return (number < 0 ? "dv-" : "dv") + digits;
}

}  // namespace

std::filesystem::path modelPath(std::int32_t number) {
  const std::int32_t unit = number % 10;
  const std::int32_t half = unit < 5 ? 0 : 5;
  return std::filesystem::path(folder(number - number % 1000)) / folder(number - number % 100) /
         folder(number - unit + half) / ("dv" + std::to_string(number) + ".twe");
}

}  // namespace nerida::library

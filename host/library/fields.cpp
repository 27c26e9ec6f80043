#include "host/library/fields.h"

#include <algorithm>

namespace nerida::library {

using nlohmann::json;

Fields::Fields(const json& value, std::string where) : object(value), place(std::move(where)) {
  if (!object.is_object()) fail("an object is expected");
}

void Fields::fail(const std::string& what) const { throw LibraryError(place + ": " + what); }

const json& Fields::raw(const char* key) {
  asked.insert(key);
  const auto found = object.find(key);
  if (found == object.end()) fail(std::string("\"") + key + "\" is missing");
  return *found;
}

double Fields::number(const char* key) {
  const json& value = raw(key);
  if (!value.is_number()) fail(std::string("\"") + key + "\" must be a number");
  return value.get<double>();
}

double Fields::number(const char* key, double otherwise) { return has(key) ? number(key) : otherwise; }

int Fields::integer(const char* key, int otherwise) {
  if (!has(key)) return otherwise;
  const json& value = raw(key);
  const bool fits =
      value.is_number_integer() && value.get<double>() >= -2147483648.0 && value.get<double>() <= 2147483647.0;
  if (!fits) fail(std::string("\"") + key + "\" must be a whole number of 32 bits");
  return value.get<int>();
}

bool Fields::flag(const char* key, bool otherwise) {
  if (!has(key)) return otherwise;
  const json& value = raw(key);
  if (!value.is_boolean()) fail(std::string("\"") + key + "\" must be true or false");
  return value.get<bool>();
}

std::string Fields::text(const char* key) {
  const json& value = raw(key);
  if (!value.is_string()) fail(std::string("\"") + key + "\" must be a text");
  return value.get<std::string>();
}

std::string Fields::text(const char* key, const std::string& otherwise) { return has(key) ? text(key) : otherwise; }

std::vector<double> Fields::numbers(const char* key) {
  const json& value = raw(key);
  const bool fits = value.is_array() && std::ranges::all_of(value, [](const json& v) { return v.is_number(); });
  if (!fits) fail(std::string("\"") + key + "\" must be a list of numbers");
  return value.get<std::vector<double>>();
}

Vec Fields::toVec(const json& value, const char* key) const {
  const bool fits = value.is_array() && (value.size() == 2 || value.size() == 3) &&
                    std::ranges::all_of(value, [](const json& v) { return v.is_number(); });
  if (!fits) fail(std::string("\"") + key + "\" needs two or three coordinates");
  return {value[0].get<double>(), value[1].get<double>(), value.size() == 3 ? value[2].get<double>() : 0};
}

Vec Fields::vec(const char* key, const Vec& otherwise) { return has(key) ? toVec(raw(key), key) : otherwise; }

std::vector<Vec> Fields::points(const char* key) {
  const json& value = raw(key);
  if (!value.is_array() || value.size() < 2) fail(std::string("\"") + key + "\" must be a list of points");
  std::vector<Vec> result;
  for (const json& point : value) result.push_back(toVec(point, key));
  return result;
}

void Fields::close() const {
  for (const auto& [key, value] : object.items()) {
    if (!asked.contains(key)) fail("\"" + key + "\" is not known here");
  }
}

}  // namespace nerida::library

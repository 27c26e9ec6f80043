#pragma once

#include <nlohmann/json.hpp>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/library/geometry.h"

namespace nerida::library {

/// A description, a model file or a library that cannot be used; the text is for the person at the terminal.
class LibraryError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// One object of a description. Each getter throws LibraryError for a value of the wrong kind, and for a missing one
/// unless it has a default; close() throws for a key that nobody asked for, so that a misspelling is noticed.
class Fields {
 public:
  /// `where` leads every error text. The JSON must outlive this.
  Fields(const nlohmann::json& object, std::string where);

  [[nodiscard]] bool has(const char* key) const { return object.contains(key); }
  const nlohmann::json& raw(const char* key);
  double number(const char* key);
  double number(const char* key, double otherwise);
  int integer(const char* key, int otherwise);
  bool flag(const char* key, bool otherwise);
  std::string text(const char* key);
  std::string text(const char* key, const std::string& otherwise);
  std::vector<double> numbers(const char* key);
  Vec vec(const char* key, const Vec& otherwise);
  /// Two or three coordinates each; the third is 0 if left out.
  std::vector<Vec> points(const char* key);
  void close() const;
  [[nodiscard]] const std::string& where() const { return place; }

  [[noreturn]] void fail(const std::string& what) const;

 private:
  Vec toVec(const nlohmann::json& value, const char* key) const;

  const nlohmann::json& object;
  std::string place;
  std::set<std::string> asked;
};

}  // namespace nerida::library

#pragma once

#include <string>

namespace nerida {

// The per-user settings store: texts by application, section and key.
class Settings {
 public:
  virtual ~Settings() = default;
  // The stored text, or the fallback when there is none. A stored empty text is returned as such. Never fails.
  virtual std::string read(const std::string& section, const std::string& key, const std::string& fallback) = 0;
  // Error 5 when the store cannot be written.
  virtual void write(const std::string& section, const std::string& key, const std::string& text) = 0;
};

}  // namespace nerida

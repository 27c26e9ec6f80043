#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "host/library/model.h"

namespace nerida::library {

/// The paints that the materials of an OBJ file become. What cannot be found is said in `remarks`, once.
class ObjMaterials {
 public:
  /// `folder` is the one in which the OBJ file lies; no file outside is read but by a relative path.
  ObjMaterials(std::filesystem::path folder, std::vector<std::string>& remarks);

  /// What follows "mtllib" in a line: one name with or without blanks in it, or several.
  void readFiles(const std::string& names);

  /// A material's paint, or the plain one when no file has described it.
  [[nodiscard]] std::size_t paintOf(const std::string& material) const;

  std::vector<Paint> paints;  ///< the first is the plain one

 private:
  bool readFile(const std::string& name);
  [[nodiscard]] std::string read(const std::string& name) const;
  void remark(const std::string& text);

  std::filesystem::path folder;
  std::vector<std::string>& remarks;
  std::map<std::string, std::size_t> known;
};

}  // namespace nerida::library

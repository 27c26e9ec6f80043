#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "host/library/geometry.h"

namespace nerida::library {

/// The lines of a text file of any system's line ends: without a byte order mark, blanks at both ends and remarks; a
/// line that ends with a backslash goes on in the next one, which stays behind as an empty line. Throws LibraryError
/// for UTF-16.
std::vector<std::string> textLines(std::string_view text);

/// What follows the first word of a line when that is `keyword`; otherwise nothing.
std::string_view argumentsOf(std::string_view line, std::string_view keyword);

/// Where a face touches the file's lists; -1 = not given.
struct ObjCorner {
  int point = -1, image = -1, normal = -1;
};

struct ObjFace {
  std::size_t firstCorner = 0, cornerCount = 0;
  int material = -1;  ///< in materialNames; -1 = none
};

/// The surfaces of an OBJ file, as they are written there.
struct ObjFile {
  std::vector<Vec> points, normals;
  std::vector<std::array<double, 3>> colours;  ///< of the points, 0 to 1 as on a screen; empty when the file has none
  std::vector<std::array<float, 2>> imagePlaces;
  std::vector<ObjCorner> corners;
  std::vector<ObjFace> faces;
  std::vector<std::string> materialNames;
  std::vector<std::string> materialFiles;  ///< one for each such line; may be several names with blanks between
};

/// Leaves out lines, single points, curves and everything else that is no flat face. Throws LibraryError that names the
/// line.
ObjFile readObj(std::string_view text);

}  // namespace nerida::library

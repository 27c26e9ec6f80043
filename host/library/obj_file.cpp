#include "host/library/obj_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <optional>

#include "host/library/fields.h"

namespace nerida::library {
namespace {

constexpr std::string_view blanks = " \t";

std::string_view trimmed(std::string_view text) {
  const std::size_t start = text.find_first_not_of(blanks);
  if (start == std::string_view::npos) return {};
  return text.substr(start, text.find_last_not_of(blanks) + 1 - start);
}

/// Takes the first word off the front.
std::string_view nextWord(std::string_view& text) {
  text = trimmed(text);
  const std::string_view word = text.substr(0, text.find_first_of(blanks));
  text.remove_prefix(word.size());
  return word;
}

template <class Number>
std::optional<Number> numberOf(std::string_view word) {
  if (word.starts_with('+')) word.remove_prefix(1);
  Number number{};
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
  return number;
}

class Reader {
 public:
  ObjFile read(std::string_view text) {
    for (const std::string& next : textLines(text)) {
      ++lineNumber;
      take(next);
    }
    if (!file.colours.empty()) file.colours.resize(file.points.size(), {1, 1, 1});
    return std::move(file);
  }

 private:
  [[noreturn]] void fail(const std::string& what) const {
    throw LibraryError("line " + std::to_string(lineNumber) + ": " + what);
  }

  void take(std::string_view line) {
    if (const auto point = argumentsOf(line, "v"); !point.empty()) return addPoint(point);
    if (const auto normal = argumentsOf(line, "vn"); !normal.empty()) return addNormal(normal);
    if (const auto place = argumentsOf(line, "vt"); !place.empty()) return addImagePlace(place);
    if (const auto face = argumentsOf(line, "f"); !face.empty()) return addFace(face);
    if (const auto name = argumentsOf(line, "usemtl"); !name.empty()) return useMaterial(name);
    if (const auto name = argumentsOf(line, "mtllib"); !name.empty()) file.materialFiles.emplace_back(name);
  }

  void addPoint(std::string_view text) {
    std::array<double, 6> values{};
    std::size_t count = 0;
    while (count < values.size()) {
      const std::string_view word = nextWord(text);
      if (word.empty()) break;
      const auto number = numberOf<double>(word);
      if (!number) fail("\"" + std::string(word.substr(0, 40)) + "\" is no number");
      if (!std::isfinite(*number)) fail("a point is infinitely far away");
      values[count++] = *number;
    }
    if (count < 3) fail("a point has less than three numbers");
    file.points.push_back({values[0], values[1], values[2]});
    if (count == values.size()) addColour({values[3], values[4], values[5]});
  }

  /// Some programs write a point's colour behind its place.
  void addColour(std::array<double, 3> colour) {
    file.colours.resize(file.points.size() - 1, {1, 1, 1});
    for (double& part : colour) part = std::clamp(part, 0.0, 1.0);
    file.colours.push_back(colour);
  }

  /// A direction that is none is made anew later.
  void addNormal(std::string_view text) {
    const auto next = [&] { return numberOf<double>(nextWord(text)).value_or(0); };
    const double x = next(), y = next(), z = next();
    const Vec normal = normalized({x, y, z});
    file.normals.push_back(std::isfinite(normal.x + normal.y + normal.z) ? normal : Vec{});
  }

  void addImagePlace(std::string_view text) {
    const auto next = [&] {
      const float value = numberOf<float>(nextWord(text)).value_or(0);
      return std::isfinite(value) ? value : 0.0F;
    };
    const float across = next(), up = next();
    file.imagePlaces.push_back({across, 1 - up});  // OBJ counts from the lower edge
  }

  void addFace(std::string_view text) {
    ObjFace face{file.corners.size(), 0, material};
    for (std::string_view word; !(word = nextWord(text)).empty(); ++face.cornerCount) {
      file.corners.push_back(cornerOf(word));
    }
    if (face.cornerCount >= 3) file.faces.push_back(face);
  }

  [[nodiscard]] ObjCorner cornerOf(std::string_view word) const {
    const auto next = [&] {
      const std::size_t end = std::min(word.find('/'), word.size());
      const std::string_view piece = word.substr(0, end);
      word.remove_prefix(std::min(end + 1, word.size()));
      return piece;
    };
    ObjCorner corner;
    corner.point = placeOf(next(), file.points.size());
    if (corner.point < 0) fail("a face names a point that is not there");
    corner.image = placeOf(next(), file.imagePlaces.size());
    corner.normal = placeOf(next(), file.normals.size());
    return corner;
  }

  /// Counted from 1, or backwards from the last one by negative numbers.
  static int placeOf(std::string_view word, std::size_t count) {
    const long long number = numberOf<long long>(word).value_or(0), all = static_cast<long long>(count);
    if (number == 0 || number > all || number < -all) return -1;
    return static_cast<int>(number > 0 ? number - 1 : all + number);
  }

  void useMaterial(std::string_view name) {
    const auto [found, isNew] = materials.try_emplace(std::string(name), static_cast<int>(materials.size()));
    if (isNew) file.materialNames.emplace_back(name);
    material = found->second;
  }

  ObjFile file;
  std::map<std::string, int> materials;
  int material = -1;
  std::size_t lineNumber = 0;
};

std::string withoutRemark(std::string_view line) {
  // A "#" within a word may belong to a name.
  for (std::size_t at = 0; (at = line.find('#', at)) != std::string_view::npos; ++at) {
    if (at == 0 || blanks.find(line[at - 1]) != std::string_view::npos) return std::string(trimmed(line.substr(0, at)));
  }
  return std::string(trimmed(line));
}

}  // namespace

std::vector<std::string> textLines(std::string_view text) {
  if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
    throw LibraryError("is written in UTF-16; save it as UTF-8 or plain text");
  }
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  std::vector<std::string> lines;
  std::size_t goesOn = std::string::npos;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    std::string line = withoutRemark(text.substr(0, end));
    text.remove_prefix(std::min(end + (text.substr(end).starts_with("\r\n") ? 2 : 1), text.size()));
    const bool unfinished = line.ends_with('\\');
    if (unfinished) line.pop_back();
    const bool continues = goesOn != std::string::npos;
    if (continues) lines[goesOn] += ' ' + line;
    lines.push_back(continues ? std::string() : std::move(line));
    if (!continues) goesOn = lines.size() - 1;
    if (!unfinished) goesOn = std::string::npos;
  }
  return lines;
}

std::string_view argumentsOf(std::string_view line, std::string_view keyword) {
  if (nextWord(line) != keyword) return {};
  return trimmed(line);
}

ObjFile readObj(std::string_view text) { return Reader().read(text); }

}  // namespace nerida::library

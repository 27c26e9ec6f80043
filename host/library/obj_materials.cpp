#include "host/library/obj_materials.h"

#include <algorithm>
#include <cctype>
#include <sstream>

#include "host/library/command_line.h"
#include "host/library/fields.h"
#include "host/library/files.h"
#include "host/library/obj_file.h"
#include "host/library/obj_reader.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

constexpr double plainGrey = 0.6;
constexpr const char* noColour = "Kd -1 -1 -1";

fs::path pathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

std::string lowerCase(std::string text) {
  std::ranges::transform(text, text.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

bool isFile(const fs::path& file) {
  std::error_code error;
  return fs::is_regular_file(file, error);
}

/// Names were often written on another system, where case does not matter or the whole path of that day was kept.
std::optional<fs::path> findBeside(const fs::path& folder, std::string name) {
  std::ranges::replace(name, '\\', '/');
  std::erase(name, '"');
  const bool isAbsolute = name.starts_with('/') || name.find(':') != std::string::npos;
  if (!isAbsolute && isFile(folder / pathOf(name))) return folder / pathOf(name);
  const std::string last = name.substr(name.find_last_of("/:") + 1);
  if (last.empty()) return std::nullopt;
  if (isFile(folder / pathOf(last))) return folder / pathOf(last);
  std::error_code error;
  for (fs::directory_iterator at(folder.empty() ? "." : folder, error), end; !error && at != end; at.increment(error)) {
    if (lowerCase(utf8(at->path().filename())) == lowerCase(last) && isFile(at->path())) return at->path();
  }
  return std::nullopt;
}

std::string imageTypeOf(const std::string& bytes) {
  if (bytes.starts_with("\x89PNG")) return "image/png";
  if (bytes.starts_with("\xFF\xD8\xFF")) return "image/jpeg";
  return {};
}

/// The materials' text with a mark that tells a material without a colour from a black one.
std::string marked(const std::string& text) {
  std::string result;
  for (const std::string& line : textLines(text)) {
    result += line + '\n';
    if (!argumentsOf(line, "newmtl").empty()) result += noColour + std::string("\n");
  }
  return result;
}

void setColour(Paint& paint, const tinyobj::material_t& material) {
  const auto& colour = material.diffuse;
  const bool pictured = !material.diffuse_texname.empty() || !material.ambient_texname.empty();
  const bool missing = colour[0] < 0, black = colour[0] == 0 && colour[1] == 0 && colour[2] == 0;
  const double otherwise = pictured ? 1 : plainGrey;
  const bool replaced = missing || (pictured && black);  // a picture is not meant to be painted over with black
  const auto part = [&](int i) { return replaced ? otherwise : std::clamp(static_cast<double>(colour[i]), 0.0, 1.0); };
  paint.red = part(0);
  paint.green = part(1);
  paint.blue = part(2);
}

}  // namespace

ObjMaterials::ObjMaterials(fs::path where, std::vector<std::string>& notes) : folder(std::move(where)), remarks(notes) {
  paints.push_back({.name = "plain", .doubleSided = true, .image = {}, .imageType = {}});
}

void ObjMaterials::remark(const std::string& text) {
  if (std::ranges::find(remarks, text) == remarks.end()) remarks.push_back(text);
}

std::string ObjMaterials::read(const std::string& name) const {
  const auto file = findBeside(folder, name);
  return file ? readWhole(*file).value_or("") : "";
}

void ObjMaterials::readFiles(const std::string& names) {
  if (readFile(names)) return;
  const std::vector<std::string> words = piecesOf(names, ' ');
  std::vector<std::string> missing;
  for (const std::string& word : words) {
    if (words.size() == 1 || !readFile(word)) missing.push_back(word);
  }
  if (missing.size() == words.size()) missing = {names};
  for (const std::string& name : missing) {
    remark("the materials " + name + " cannot be found; what they describe gets a plain colour");
  }
}

bool ObjMaterials::readFile(const std::string& name) {
  const std::string text = read(name);
  if (text.empty()) return false;
  std::vector<tinyobj::material_t> materials;
  std::map<std::string, int> numbers;
  std::string warning, error;
  std::istringstream stream(marked(text));
  tinyobj::LoadMtl(&numbers, &materials, &stream, &warning, &error);
  for (const tinyobj::material_t& material : materials) {
    Paint paint;
    paint.name = material.name;
    paint.doubleSided = true;  // OBJ files do not say which side is meant
    setColour(paint, material);
    const std::string& picture = material.diffuse_texname.empty() ? material.ambient_texname : material.diffuse_texname;
    if (!picture.empty()) paint.image = read(picture);
    paint.imageType = imageTypeOf(paint.image);
    if (paint.imageType.empty()) {
      paint.image.clear();
      if (!picture.empty()) remark("the picture " + picture + " cannot be used; its colour is left out");
    }
    known[paint.name] = paints.size();
    paints.push_back(std::move(paint));
  }
  return true;
}

std::size_t ObjMaterials::paintOf(const std::string& material) const {
  const auto found = known.find(material);
  return found == known.end() ? 0 : found->second;
}

}  // namespace nerida::library

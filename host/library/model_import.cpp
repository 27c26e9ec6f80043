#include "host/library/model_import.h"

#include <algorithm>
#include <cctype>
#include <nlohmann/json.hpp>

#include "host/library/fields.h"
#include "host/library/files.h"
#include "host/library/glb_fit.h"
#include "host/library/glb_writer.h"
#include "host/library/obj_import.h"
#include "host/scene/model.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t largestFile = 256U * 1024U * 1024U;

std::string extensionOf(const fs::path& file) {
  const std::u8string text = file.extension().u8string();
  std::string extension(text.begin(), text.end());
  std::ranges::transform(extension, extension.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return extension;
}

Model parsed(const std::string& bytes) {
  return Model::parse({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
}

/// Pictures that lie in other files stay behind.
void remarkMissingPictures(const std::string& bytes, std::vector<std::string>& remarks) {
  const nlohmann::json document = descriptionOf(bytes);
  if (!document.contains("images")) return;
  for (const nlohmann::json& image : document["images"]) {
    const std::string place = image.value("uri", "data:");
    if (!place.starts_with("data:")) {
      remarks.push_back("the picture " + place.substr(0, 60) + " lies in another file; its colour is left out");
    }
  }
}

ImportedModel importGlb(const fs::path& file) {
  const std::optional<std::string> bytes = readWhole(file);
  if (!bytes) throw LibraryError(file.string() + ": cannot be read");
  ImportedModel imported;
  imported.bytes = fittedGlb(*bytes, parsed(*bytes).extent());
  remarkMissingPictures(*bytes, imported.remarks);
  return imported;
}

ImportedModel importByKind(const fs::path& file) {
  const std::string extension = extensionOf(file);
  if (extension == ".obj") {
    ImportedModel imported;
    imported.bytes = writeGlb(importObj(file, imported.remarks));
    return imported;
  }
  if (extension == ".glb" || extension == ".twe") return importGlb(file);
  if (extension == ".gltf") {
    throw LibraryError(file.string() + ": is glTF in several files; export it as one binary file (.glb)");
  }
  throw LibraryError(file.string() + ": only .glb and .obj files can be added");
}

}  // namespace

ImportedModel importModel(const fs::path& file) {
  std::error_code error;
  if (!fs::is_regular_file(file, error)) throw LibraryError(file.string() + ": there is no such file");
  if (fs::file_size(file, error) > largestFile) throw LibraryError(file.string() + ": the model file is too large");
  try {
    ImportedModel imported = importByKind(file);
    Model model = parsed(imported.bytes);
    imported.animated = model.frameCount() > 0;
    imported.triangles = model.meshAt(0).triangles.size();
    return imported;
  } catch (const ModelError& failure) {
    throw LibraryError(file.string() + ": " + failure.what());
  }
}

}  // namespace nerida::library

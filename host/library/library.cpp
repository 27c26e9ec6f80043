#include "host/library/library.h"

#include <algorithm>
#include <set>

#include "host/library/description.h"
#include "host/library/fields.h"
#include "host/library/files.h"
#include "host/library/glb_check.h"
#include "host/library/glb_writer.h"
#include "host/library/index_file.h"
#include "host/library/model_path.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> descriptionsIn(const fs::path& folder) {
  std::error_code error;
  std::vector<fs::path> files;
  for (fs::recursive_directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    if (at->path().extension() == ".model") files.push_back(at->path());
  }
  if (error) throw LibraryError(folder.string() + ": cannot be read");
  if (files.empty()) throw LibraryError(folder.string() + ": holds no descriptions");
  std::ranges::sort(files);
  return files;
}

void addSurplus(const fs::path& library, const std::set<fs::path>& wanted, std::vector<std::string>& faults) {
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(library)) {
    const fs::path relative = entry.path().lexically_relative(library);
    if (relative.extension() == ".twe" && !wanted.contains(relative)) {
      faults.push_back(relative.generic_string() + ": it is not in the index");
    }
  }
}

}  // namespace

void buildLibrary(const fs::path& descriptions, const fs::path& target,
                  const std::function<void(const std::string&)>& progress) {
  std::vector<ModelCard> cards;
  std::set<std::int32_t> numbers;
  const Shared shared = readSharedFile(descriptions);
  for (const fs::path& file : descriptionsIn(descriptions)) {
    const BuiltModel model = buildModelFile(file, shared);
    const ModelCard& card = model.card;
    if (!numbers.insert(card.number).second) {
      throw LibraryError(file.filename().string() + ": number " + std::to_string(card.number) + " is taken already");
    }
    writeFile(target / modelPath(card.number), writeGlb(model));
    cards.push_back(card);
    progress(std::to_string(card.number) + "  " + card.name + ", " + std::to_string(triangleCount(model.root)) +
             " triangles" + (card.animated ? ", " + std::to_string(model.frames) + " frames" : ""));
  }
  writeIndex(target, std::move(cards));
}

std::vector<std::string> checkLibrary(const fs::path& library) {
  std::vector<std::string> faults;
  std::set<fs::path> wanted;
  for (const ModelCard& card : readIndex(library)) {
    const fs::path relative = modelPath(card.number);
    wanted.insert(relative);
    const std::string wrong = whatIsWrongWith(library / relative);
    if (!wrong.empty()) faults.push_back(relative.generic_string() + ": " + wrong);
  }
  addSurplus(library, wanted, faults);
  return faults;
}

}  // namespace nerida::library

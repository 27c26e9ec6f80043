#include "host/library/commands.h"

#include <algorithm>
#include <cstdio>

#include "host/library/command_line.h"
#include "host/library/fields.h"
#include "host/library/index_file.h"
#include "host/library/library.h"
#include "host/library/library_editor.h"
#include "host/library/model_import.h"
#include "host/library/shipped_models.h"

namespace nerida::library {
namespace {

namespace fs = std::filesystem;

constexpr const char* usage =
    "zephra-library add FILE... [--name TEXT] [--category TEXT[/TEXT]] [--keywords TEXT,TEXT...] [--number N]\n"
    "                                    take binary glTF (.glb) and OBJ files into the library\n"
    "zephra-library remove NUMBER...     take models out of it\n"
    "zephra-library list                 show its models\n"
    "zephra-library check                look whether its files, index and database are whole\n"
    "zephra-library build-index          make the database anew out of the index\n"
    "zephra-library build DESCRIPTIONS   make a library from the descriptions in a folder\n"
    "zephra-library replace-shipped [FOLDER]\n"
    "                                    put the models of another library in place of those that came this way\n"
    "                                    before; people's own stay\n"
    "\n"
    "All take --library FOLDER (else Models beside this program) and --database FOLDER (else the folder above the\n"
    "library).\n";

LibraryPlaces placesOf(const CommandLine& line, const fs::path& programFolder) {
  fs::path models = fs::absolute(line.path("--library", programFolder / "Models")).lexically_normal();
  if (!models.has_filename()) models = models.parent_path();
  fs::path database = line.path("--database", models.parent_path());
  return {std::move(models), std::move(database)};
}

/// Rewrites one line of the terminal.
void showProgress(const std::string& what, std::size_t done, std::size_t all) {
  const std::size_t step = std::max<std::size_t>(1, all / 100);
  if (done % step != 0 && done != all) return;
  std::fprintf(stderr, "\r%s %zu of %zu", what.c_str(), done, all);
  if (done == all) std::fputs("\n", stderr);
  std::fflush(stderr);
}

std::vector<std::string> keywordsOf(const CommandLine& line, const std::string& name) {
  std::vector<std::string> keywords = piecesOf(line.text("--keywords", ""), ',');
  return keywords.empty() ? piecesOf(name, ' ') : keywords;
}

ModelCard cardOf(const CommandLine& line, const fs::path& file) {
  ModelCard card;
  card.name = line.text("--name", utf8(file.stem()));
  if (piecesOf(card.name, ' ').empty()) throw LibraryError("the name is empty");
  const std::vector<std::string> category = piecesOf(line.text("--category", "My models"), '/');
  if (category.empty() || category.size() > 2) throw LibraryError("a category looks like Animals or Animals/Pets");
  card.category = category.front();
  card.subcategory = category.back();
  card.keywords = keywordsOf(line, card.name);
  return card;
}

int add(const CommandLine& line, const LibraryPlaces& places) {
  if (line.files().empty()) throw LibraryError("name the files to be added");
  const bool single = line.files().size() == 1;
  if (!single && (line.has("--name") || line.has("--number"))) {
    throw LibraryError("--name and --number are for one file");
  }
  std::size_t done = 0;
  for (const fs::path& file : line.files()) {
    ModelCard card = cardOf(line, file);
    std::fprintf(stderr, "Reading %s\n", utf8(file).c_str());
    const ImportedModel imported = importModel(file);
    for (const std::string& remark : imported.remarks) std::fprintf(stderr, "Note: %s\n", remark.c_str());
    card.animated = imported.animated;
    LibraryEditor editor(places);
    card.number = line.has("--number") ? wholeNumber(line.text("--number", "")) : editor.nextNumber();
    if (card.number < 0) throw LibraryError("a number is 0 or more");
    editor.add(card, imported.bytes);
    std::printf("%d  %s, %zu triangles%s\n", static_cast<int>(card.number), card.name.c_str(), imported.triangles,
                card.animated ? ", animated" : "");
    if (!single) showProgress("Added", ++done, line.files().size());
  }
  return 0;
}

int remove(const CommandLine& line, const LibraryPlaces& places) {
  if (line.files().empty()) throw LibraryError("name the numbers to be removed");
  for (const fs::path& word : line.files()) {
    const std::int32_t number = wholeNumber(utf8(word));
    LibraryEditor(places).remove(number);
    std::printf("%d  removed\n", static_cast<int>(number));
  }
  return 0;
}

int list(const CommandLine&, const LibraryPlaces& places) {
  for (const ModelCard& card : readIndex(places.models)) {
    std::printf("%6d  %-24s %s / %s%s\n", static_cast<int>(card.number), card.name.c_str(), card.category.c_str(),
                card.subcategory.c_str(), card.animated ? "  (animated)" : "");
  }
  return 0;
}

int check(const CommandLine&, const LibraryPlaces& places) {
  if (hasUnfinishedChange(places.models)) LibraryEditor{places};
  const std::vector<std::string> faults = checkLibrary(places);
  for (const std::string& fault : faults) std::puts(fault.c_str());
  if (faults.empty()) std::printf("%zu models, all whole\n", readIndex(places.models).size());
  return faults.empty() ? 0 : 1;
}

int buildIndex(const CommandLine&, const LibraryPlaces& places) {
  LibraryEditor(places).buildDatabase(
      [](std::size_t done, std::size_t all) { showProgress("Entering models:", done, all); });
  return 0;
}

int build(const CommandLine& line, const LibraryPlaces& places) {
  if (line.files().size() != 1) throw LibraryError("name one folder of descriptions");
  buildLibrary(line.files().front(), places.models, [](const std::string& text) {
    std::puts(text.c_str());
    std::fflush(stdout);
  });
  LibraryEditor(places).buildDatabase();
  return 0;
}

int replaceShipped(const CommandLine& line, const LibraryPlaces& places) {
  if (line.files().size() > 1) throw LibraryError("name one library");
  replaceShippedModels(places, line.files().empty() ? fs::path() : line.files().front());
  return 0;
}

struct Command {
  const char* name;
  int (*run)(const CommandLine&, const LibraryPlaces&);
  std::vector<std::string> options;
};

const Command* findCommand(const std::string& name) {
  static const Command commands[] = {{"add", add, {"--name", "--category", "--keywords", "--number"}},
                                     {"remove", remove, {}},
                                     {"list", list, {}},
                                     {"check", check, {}},
                                     {"build-index", buildIndex, {}},
                                     {"build", build, {}},
                                     {"replace-shipped", replaceShipped, {}}};
  const auto* found = std::ranges::find_if(commands, [&](const Command& command) { return name == command.name; });
  return found == std::end(commands) ? nullptr : found;
}

}  // namespace

int runCommand(const std::vector<fs::path>& words, const fs::path& programFolder) {
  const Command* command = words.empty() ? nullptr : findCommand(utf8(words[0]));
  if (!command) {
    std::fputs(usage, stderr);
    return 2;
  }
  std::vector<std::string> known = command->options;
  known.insert(known.end(), {"--library", "--database"});
  const CommandLine line({words.begin() + 1, words.end()}, known);
  return command->run(line, placesOf(line, programFolder));
}

}  // namespace nerida::library

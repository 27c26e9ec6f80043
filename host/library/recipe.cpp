#include "host/library/recipe.h"

#include <set>

#include "host/library/fields.h"
#include "host/library/recipe_parts.h"

namespace nerida::library {
namespace {

using nlohmann::json;
using Lines = std::vector<RecipeLine>;

bool isColor(const std::string& text) {
  return text.size() == 7 && text[0] == '#' && text.find_first_not_of("0123456789abcdefABCDEF", 1) == std::string::npos;
}

class Reader {
 public:
  Reader(Lines& recipeLines, json& colors, json& definitions)
      : lines(recipeLines), materials(colors), shapes(definitions) {}

  /// The part of the present line, with those that are set in below it.
  json part() {
    RecipeLine& line = lines[at++];
    json result = partOfLine(line, materials);
    if (result.contains("use") && !shapes.contains(result["use"])) {
      line.fail("there is no definition above of that name: " + result["use"].get<std::string>());
    }
    json below = partsBelow(line.indent());
    if (!below.empty()) result[result.contains("blob") ? "of" : "parts"] = std::move(below);
    return result;
  }

  void define(RecipeLine& line) {
    const std::string name = line.word();
    // A shared definition gives way to the model's own.
    if (!own.insert(name).second) line.fail("there is a definition of that name already: " + name);
    json parts = partsBelow(line.indent());
    shapes[name] = std::move(parts);  // only now: a definition cannot use itself
  }

  void colors(RecipeLine& line) {
    while (!line.done()) {
      const std::string name = line.word(), value = line.word();
      if (!isColor(value)) line.fail("the colour of " + name + " must look like #3366cc");
      materials[name] = value;
    }
  }

  /// The next line that is not part of anything above it; nullptr at the end.
  RecipeLine* nextHeading() {
    if (at == lines.size()) return nullptr;
    if (lines[at].indent() != 0) lines[at].fail("this line is set in, but belongs to nothing");
    return &lines[at++];
  }

  void stepBack() { --at; }

 private:
  json partsBelow(int indent) {
    json list = json::array();
    while (at < lines.size() && lines[at].indent() > indent) {
      if (lines[at].indent() != indent + 2) lines[at].fail("each level is set in by two blanks");
      list.push_back(part());
    }
    return list;
  }

  Lines& lines;
  json &materials, &shapes;
  std::set<std::string> own;
  std::size_t at = 0;
};

void readPlace(RecipeLine& line, json& card) {
  const std::vector<std::string> both = line.listToTheEnd();
  if (both.size() != 2) line.fail("a category and a sub-category are expected");
  card["category"] = both[0];
  card["subcategory"] = both[1];
}

void readFrames(RecipeLine& line, json& card) {
  card["frames"] = line.whole("frames");
  if (!line.done()) card["framesPerSecond"] = line.number("frames for each second");
}

/// True when the line was about the model as a whole.
bool readCard(RecipeLine& line, json& card) {
  const std::string word = line.peek();
  if (word != "model" && word != "in" && word != "words" && word != "frames") return false;
  line.word();
  if (word == "model") {
    card["number"] = line.whole("the model's number");
    card["name"] = line.word();
  }
  if (word == "in") readPlace(line, card);
  if (word == "words") card["keywords"] = line.listToTheEnd();
  if (word == "frames") readFrames(line, card);
  if (!line.done()) line.fail("too much: " + line.peek());
  return true;
}

/// Leaves out what a model does not use, so that its file stays small.
void keepUsed(const json& parts, const json& definitions, const json& all, json& used) {
  for (const json& part : parts) {
    if (part.contains("material")) {
      const std::string name = part["material"];
      used[name] = all[name];
    }
    for (const char* below : {"parts", "of"}) {
      if (part.contains(below)) keepUsed(part[below], definitions, all, used);
    }
    if (part.contains("use") && definitions.contains(part["use"].get<std::string>())) {
      keepUsed(definitions[part["use"].get<std::string>()], definitions, all, used);
    }
  }
}

/// Reads headings until the end; `other` gets those that are neither colours nor definitions.
template <class Other>
void readHeadings(Reader& reader, const Other& other) {
  while (RecipeLine* line = reader.nextHeading()) {
    const std::string word = line->peek();
    if (word == "colours") {
      line->word();
      reader.colors(*line);
    } else if (word == "define") {
      line->word();
      reader.define(*line);
    } else {
      other(*line);
    }
  }
}

}  // namespace

Shared readShared(const std::string& text, const std::string& where) {
  Shared shared;
  Lines lines = recipeLines(text, where);
  Reader reader(lines, shared.colors, shared.definitions);
  readHeadings(reader, [](RecipeLine& line) { line.fail("only colours and definitions are expected here"); });
  return shared;
}

json readRecipe(const std::string& text, const std::string& where, const Shared& shared) {
  json card = json::object(), colors = shared.colors, definitions = shared.definitions, parts = json::array();
  Lines lines = recipeLines(text, where);
  Reader reader(lines, colors, definitions);
  readHeadings(reader, [&](RecipeLine& line) {
    if (readCard(line, card)) return;
    reader.stepBack();
    parts.push_back(reader.part());
  });
  json used = json::object();
  keepUsed(parts, definitions, colors, used);
  if (used.empty()) throw LibraryError(where + ": no part has a colour");
  card["materials"] = std::move(used);
  card["shapes"] = std::move(definitions);
  card["parts"] = std::move(parts);
  return card;
}

}  // namespace nerida::library

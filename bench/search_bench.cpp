// search_bench make FOLDER COUNT            makes a database of so many models
// search_bench texts COUNT                  prints their texts as records of fields, for other indexers
// search_bench words                        prints the questions, one "KIND TEXT" in a line
// search_bench ask FOLDER KIND TEXT TIMES   asks so many times over, and prints the number of hits
// search_bench boats FOLDER COUNT ONE OTHER makes a database of so many boats, the first two with these numbers
// search_bench add FOLDER COUNT             adds models to a library of its own in that folder, and prints what one
// costs
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>

#include "bench/library_of_words.h"
#include "host/library/index_file.h"
#include "host/library/library_editor.h"
#include "host/search/engine.h"
#include "host/search/model_database.h"

namespace nerida::bench {
namespace {

constexpr std::size_t randomModels = 20;

void make(const std::string& folder, std::size_t count) { search::buildDatabase(folder, libraryOfWords(count)); }

void printTexts(std::size_t count) {
  for (const search::ModelCard& card : libraryOfWords(count)) {
    std::printf("name=%s\nkeywords=", card.name.c_str());
    for (const std::string& keyword : card.keywords) std::printf("%s ", keyword.c_str());
    std::printf("\n\n");
  }
}

/// The frequent word is in one of ten models, the rare one in less than one of a thousand.
void printQuestions() {
  const std::string frequent = wordOfRank(5), usual = wordOfRank(30), rare = wordOfRank(2000);
  std::string misspelt = usual;
  misspelt.insert(3, 1, 'h');
  std::printf("frequent %s\nword %s\nrare %s\nprefix %s\ntwo %s %s\nmisspelt %s\n", frequent.c_str(), usual.c_str(),
              rare.c_str(), usual.substr(0, 4).c_str(), frequent.c_str(), usual.c_str(), misspelt.c_str());
  std::printf("category Category 3.7\nrandom :\n");
}

std::size_t hitsOf(search::SearchEngine& engine, const std::string& kind, const std::string& text) {
  if (kind == "category") return engine.searchCategory(text).size();
  if (kind == "random") return engine.searchRandom(randomModels).size();
  return engine.searchKeywords(text).size();
}

void ask(const std::string& folder, const std::string& kind, const std::string& text, int times) {
  search::SearchEngine engine({std::filesystem::path(folder) / search::databaseFileName, {}, {}});
  std::size_t hits = 0;
  for (int i = 0; i < times; ++i) hits = hitsOf(engine, kind, text);
  std::printf("%zu\n", hits);
}

void makeBoats(const std::string& folder, std::size_t count, std::int32_t one, std::int32_t other) {
  constexpr std::int32_t firstOfNoFile = 100'000'000;
  std::vector<search::ModelCard> cards;
  for (std::size_t i = 0; i < count; ++i) {
    search::ModelCard card{firstOfNoFile + static_cast<std::int32_t>(i), "Boat", "Transport", "Ships", {}, false};
    if (i > 0) card.name += ' ' + std::to_string(i);
    if (i < 2) card.number = i == 0 ? one : other;
    cards.push_back(std::move(card));
  }
  search::buildDatabase(folder, cards);
}

/// Single models are added to a library of that size, as the tool does it.
void add(const std::string& folder, std::size_t count) {
  constexpr std::size_t added = 50;
  const library::LibraryPlaces places{std::filesystem::path(folder) / "Models", folder};
  std::filesystem::create_directories(places.models);
  std::vector<search::ModelCard> cards = libraryOfWords(count + added);
  const std::vector<search::ModelCard> before(cards.begin(), cards.end() - added);
  library::writeIndex(places.models, before);
  search::buildDatabase(folder, before);
  const std::string file(20'000, 'x');
  const auto start = std::chrono::steady_clock::now();
  for (std::size_t i = count; i < cards.size(); ++i) library::LibraryEditor(places).add(cards[i], file);
  const std::chrono::duration<double, std::micro> taken = std::chrono::steady_clock::now() - start;
  std::printf("add.%zu %.1f\n", count, taken.count() / added);
}

bool run(int count, char** words) {
  const std::string what = count > 1 ? words[1] : "";
  const auto number = [&](int at) { return static_cast<std::size_t>(std::strtoul(words[at], nullptr, 10)); };
  if (what == "make" && count == 4) return make(words[2], number(3)), true;
  if (what == "texts" && count == 3) return printTexts(number(2)), true;
  if (what == "words" && count == 2) return printQuestions(), true;
  if (what == "ask" && count == 6) return ask(words[2], words[3], words[4], static_cast<int>(number(5))), true;
  if (what == "boats" && count == 6) {
    return makeBoats(words[2], number(3), static_cast<std::int32_t>(number(4)), static_cast<std::int32_t>(number(5))),
           true;
  }
  if (what == "add" && count == 4) return add(words[2], number(3)), true;
  return false;
}

}  // namespace
}  // namespace nerida::bench

int main(int count, char** words) {
  try {
    if (nerida::bench::run(count, words)) return 0;
    std::fputs("usage: search_bench make|texts|words|ask|add ...; see its source\n", stderr);
    return 2;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "search_bench: %s\n", error.what());
    return 1;
  }
}

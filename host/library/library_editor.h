#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "host/library/file_lock.h"
#include "host/library/model.h"

namespace nerida::library {

/// Where a library's models lie, and the folder with the database that finds them.
struct LibraryPlaces {
  std::filesystem::path models, database;
};

/// The file by which editors of one library wait for each other.
inline constexpr const char* lockFileName = "library.lock";

/// Changes a library: model files, index and database together. Whoever is killed in the middle leaves a note behind
/// from which the next editor completes the change or takes it back; until then a search sees the library without it
/// or with all of it. Everything here throws LibraryError.
class LibraryEditor {
 public:
  /// Models that are people's own are numbered from here.
  static constexpr std::int32_t firstOwnNumber = 50000;

  /// Hears of each step that has been done; tests interrupt there.
  using Step = std::function<void(const char* done)>;

  /// Waits for other editors of the same library and brings an interrupted change to an end. The library's folder is
  /// made when it is missing.
  explicit LibraryEditor(LibraryPlaces places, Step step = {});

  /// The number that the next model of one's own gets.
  [[nodiscard]] std::int32_t nextNumber() const;

  /// Fails, changing nothing, when the number is taken.
  void add(const ModelCard& card, const std::string& modelFile);

  /// Fails, changing nothing, when there is no such model.
  void remove(std::int32_t number);

  /// Makes the database anew out of the index.
  void buildDatabase(const std::function<void(std::size_t done, std::size_t all)>& progress = {});

 private:
  void did(const char* what) const;
  void note(const std::string& text) const;
  void forgetNote() const;
  void bringToAnEnd() const;
  void endAdding(const ModelCard& card) const;
  void endRemoving(std::int32_t number) const;
  [[nodiscard]] bool databaseHas(std::int32_t number) const;
  void requireDatabase();

  LibraryPlaces places;
  Step step;
  FileLock lock;
};

/// True when a change of the library was interrupted and nobody has brought it to an end yet.
[[nodiscard]] bool hasUnfinishedChange(const std::filesystem::path& library);

/// Everything that is wrong with a library and its database, one sentence each.
std::vector<std::string> checkLibrary(const LibraryPlaces& places);

}  // namespace nerida::library

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "host/search/database_error.h"

struct sqlite3;
struct sqlite3_stmt;

namespace nerida::search {

/// A connection to an SQLite database. Everything here throws DatabaseError.
class Database {
 public:
  /// An existing file. Unfinished changes of a program that died are taken back where the file may be written.
  static Database open(const std::filesystem::path& file);
  /// A file that is made when it is absent; an empty one counts as absent.
  static Database create(const std::filesystem::path& file);
  /// A database of its own that is gone with the connection; it may be larger than the memory.
  static Database temporary();

  Database(Database&& other) noexcept;
  Database& operator=(Database&& other) noexcept;
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  ~Database();

  void run(const char* statements);
  std::int64_t number(const char* query);
  /// Replaces this database's whole content in one step.
  void become(Database& source);

  sqlite3* handle() const { return connection; }
  /// Turns a status of SQLite's into our error.
  [[noreturn]] void fail(int status) const;
  /// Says that this is not a database of ours.
  [[noreturn]] void refuse(const std::string& reason) const;

 private:
  Database(const std::filesystem::path& file, int flags);

  sqlite3* connection = nullptr;
  std::filesystem::path file;
};

/// A prepared statement: bind, then step through its rows; running it again starts with reset(). Numbers of parameters
/// start with 1, of columns with 0.
class Statement {
 public:
  Statement(Database& database, const char* text);
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;
  ~Statement();

  /// The text must live until the next reset().
  Statement& bind(int parameter, std::string_view text);
  Statement& bind(int parameter, std::int64_t number);
  bool step();
  /// Runs the statement to its end and makes it ready for the next time.
  void run();
  void reset();

  /// Valid until the next step().
  std::string_view text(int column);
  std::int64_t number(int column);

 private:
  void check(int status);

  Database& database;
  sqlite3_stmt* statement = nullptr;
};

/// Everything between begin and commit happens together or, when the scope ends without a commit, not at all.
class Transaction {
 public:
  enum class Kind { reading, writing };

  Transaction(Database& database, Kind kind);
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  ~Transaction();

  void commit();

 private:
  Database& database;
  bool open = true;
};

}  // namespace nerida::search

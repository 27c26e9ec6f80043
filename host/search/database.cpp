#include "host/search/database.h"

#include <sqlite3.h>

#include <chrono>
#include <thread>
#include <utility>

namespace nerida::search {
namespace {

/// How long a search or a change waits for other programs. A person waits along with a search.
constexpr int patienceInMilliseconds = 3000;

std::string utf8(const std::filesystem::path& file) {
  const std::u8string text = file.u8string();
  return {text.begin(), text.end()};
}

DatabaseFault faultOf(int status) {
  switch (status & 0xFF) {
    case SQLITE_NOTADB:
      return DatabaseFault::foreign;
    case SQLITE_CORRUPT:
    case SQLITE_FORMAT:
      return DatabaseFault::damaged;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return DatabaseFault::busy;
    case SQLITE_NOMEM:
      return DatabaseFault::memory;
    default:
      return DatabaseFault::other;
  }
}

DatabaseError errorAbout(DatabaseFault fault, const std::filesystem::path& file, const std::string& detail) {
  return {fault, std::string(describe(fault)) + ": " + utf8(file) + (detail.empty() ? "" : " (" + detail + ")")};
}

bool isAbsent(const std::filesystem::path& file) {
  std::error_code error;
  return !std::filesystem::is_regular_file(file, error);
}

}  // namespace

Database::Database(const std::filesystem::path& file, int flags) : file(file) {
  const int status = sqlite3_open_v2(utf8(file).c_str(), &connection, flags | SQLITE_OPEN_NOMUTEX, nullptr);
  if (status != SQLITE_OK) {
    const int exact = connection == nullptr ? SQLITE_NOMEM : status;
    const Database closer(std::move(*this));
    closer.fail(exact);
  }
  sqlite3_extended_result_codes(connection, 1);
  sqlite3_busy_timeout(connection, patienceInMilliseconds);
  // What a foreign file may bring along must not run in our name.
  sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
}

Database Database::open(const std::filesystem::path& file) {
  if (isAbsent(file)) throw errorAbout(DatabaseFault::missing, file, "");
  Database database(file, SQLITE_OPEN_READWRITE);
  database.run("PRAGMA cell_size_check = ON");
  return database;
}

Database Database::create(const std::filesystem::path& file) {
  return {file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE};
}

Database Database::temporary() { return {{}, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE}; }

Database::Database(Database&& other) noexcept
    : connection(std::exchange(other.connection, nullptr)), file(std::move(other.file)) {}

Database& Database::operator=(Database&& other) noexcept {
  std::swap(connection, other.connection);
  std::swap(file, other.file);
  return *this;
}

Database::~Database() { sqlite3_close_v2(connection); }

void Database::fail(int status) const {
  const std::string detail = connection == nullptr ? sqlite3_errstr(status) : sqlite3_errmsg(connection);
  throw errorAbout(faultOf(status), file, detail);
}

void Database::refuse(const std::string& reason) const { throw errorAbout(DatabaseFault::foreign, file, reason); }

void Database::run(const char* statements) {
  const int status = sqlite3_exec(connection, statements, nullptr, nullptr, nullptr);
  if (status != SQLITE_OK) fail(status);
}

std::int64_t Database::number(const char* query) {
  Statement statement(*this, query);
  return statement.step() ? statement.number(0) : 0;
}

void Database::become(Database& source) {
  using std::chrono::steady_clock;
  const auto deadline = steady_clock::now() + std::chrono::milliseconds(patienceInMilliseconds);
  sqlite3_backup* copy = sqlite3_backup_init(connection, "main", source.connection, "main");
  if (copy == nullptr) fail(sqlite3_errcode(connection));
  int status = SQLITE_OK;
  for (;;) {
    status = sqlite3_backup_step(copy, -1);
    const bool waits = faultOf(status) == DatabaseFault::busy && steady_clock::now() < deadline;
    if (!waits) break;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  const int finished = sqlite3_backup_finish(copy);
  if (status != SQLITE_DONE) fail(status);
  if (finished != SQLITE_OK) fail(finished);
}

Statement::Statement(Database& database, const char* text) : database(database) {
  check(sqlite3_prepare_v2(database.handle(), text, -1, &statement, nullptr));
}

Statement::~Statement() { sqlite3_finalize(statement); }

void Statement::check(int status) {
  if (status != SQLITE_OK) database.fail(status);
}

Statement& Statement::bind(int parameter, std::string_view text) {
  check(sqlite3_bind_text64(statement, parameter, text.empty() ? "" : text.data(), text.size(), SQLITE_STATIC,
                            SQLITE_UTF8));
  return *this;
}

Statement& Statement::bind(int parameter, std::int64_t number) {
  check(sqlite3_bind_int64(statement, parameter, number));
  return *this;
}

bool Statement::step() {
  const int status = sqlite3_step(statement);
  if (status != SQLITE_ROW && status != SQLITE_DONE) database.fail(status);
  return status == SQLITE_ROW;
}

void Statement::run() {
  while (step()) {
  }
  reset();
}

void Statement::reset() { sqlite3_reset(statement); }

std::string_view Statement::text(int column) {
  const auto* start = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  if (start == nullptr) return {};
  return {start, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

std::int64_t Statement::number(int column) { return sqlite3_column_int64(statement, column); }

Transaction::Transaction(Database& database, Kind kind) : database(database) {
  database.run(kind == Kind::reading ? "BEGIN" : "BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
  if (open) sqlite3_exec(database.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit() {
  database.run("COMMIT");
  open = false;
}

}  // namespace nerida::search

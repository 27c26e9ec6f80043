#include "host/search/full_text.h"

#include <sqlite3.h>

#include "host/search/database.h"

namespace nerida::search {

fts5_api& fullText(Database& database) {
  fts5_api* api = nullptr;
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database.handle(), "SELECT fts5(?1)", -1, &statement, nullptr) == SQLITE_OK) {
    sqlite3_bind_pointer(statement, 1, static_cast<void*>(&api), "fts5_api_ptr", nullptr);
    sqlite3_step(statement);
  }
  sqlite3_finalize(statement);
  if (api == nullptr) database.fail(SQLITE_ERROR);
  return *api;
}

}  // namespace nerida::search

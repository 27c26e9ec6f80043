#pragma once

struct fts5_api;

namespace nerida::search {

class Database;

/// What SQLite's full-text module offers to programs. Throws DatabaseError.
fts5_api& fullText(Database& database);

}  // namespace nerida::search

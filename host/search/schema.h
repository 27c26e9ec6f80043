#pragma once

#include <cstdint>
#include <filesystem>

namespace nerida::search {

class Database;

/// The bit of a model's flags that marks an animated one.
inline constexpr std::int64_t animatedFlag = 0x20;

/// The order of the full-text index's columns.
enum class Column { name = 0, keywords = 1 };

/// Makes the tables in an empty database. Throws DatabaseError.
void createSchema(Database& database);

/// Throws a DatabaseError of kind foreign unless the database is one of ours.
void requireSchema(Database& database);

/// Opens a database of ours. Throws DatabaseError.
Database openModelDatabase(const std::filesystem::path& file);

}  // namespace nerida::search

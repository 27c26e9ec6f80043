#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace nerida::search {

class Database;

/// The numbers of up to `count` different models in random order, each selection as likely as any other, inside a
/// transaction of the caller's. Throws DatabaseError.
std::vector<std::int64_t> randomNumbers(Database& database, std::size_t count);

}  // namespace nerida::search

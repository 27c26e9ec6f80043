#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "host/search/database_error.h"
#include "host/search/model_card.h"

namespace nerida::search {

/// The model database's file, in the product's dictionary folder.
inline constexpr const char* databaseFileName = "Models.db";

/// Hears how many models are done.
using Progress = std::function<void(std::size_t done)>;

/// Makes the database in `folder` (made when missing) hold exactly `cards`, whatever was there before. Interrupted at
/// any point it is the old database or the new one; searches that go on meanwhile see one or the other. Texts may be
/// any UTF-8; control characters in them become blanks. Throws DatabaseError, also when two cards have one number.
void buildDatabase(const std::filesystem::path& folder, const std::vector<ModelCard>& cards,
                   const Progress& progress = {});

/// Adds the cards of `added` (replacing those of the same number) and takes the models of `removed` out, all or
/// nothing. The cost does not depend on the size of the database. Unknown numbers in `removed` are ignored. An absent
/// database is made. Throws DatabaseError.
void changeDatabase(const std::filesystem::path& folder, const std::vector<ModelCard>& added,
                    const std::vector<std::int32_t>& removed = {});

/// All cards, by number. Throws DatabaseError.
std::vector<ModelCard> readDatabase(const std::filesystem::path& folder);

/// Everything that is wrong with the database, one sentence each; empty = it is sound.
std::vector<std::string> checkDatabase(const std::filesystem::path& folder);

}  // namespace nerida::search

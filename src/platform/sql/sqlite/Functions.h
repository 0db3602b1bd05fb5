#pragma once
// What the dialect's functions and its order of texts are inside SQLite.

#include <optional>

#include "platform/base/Error.h"

struct sqlite3;

namespace fenvale::sql {

/// Adds the collation and the functions that the emitter names. A function that fails leaves its Error in `failure`,
/// which must live as long as the database.
void registerFunctions(sqlite3* database, std::optional<Error>& failure);

}  // namespace fenvale::sql
